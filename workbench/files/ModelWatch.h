// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>

class HostSession;
class ModelReload;

/// Reloads the scene's models when their files change, once a file has been left alone for a
/// moment. Programs that write a file anew under its name, or beside it and rename it, are noticed
/// alike. A file that cannot be read, maybe as it is half written, keeps what is shown.
class ModelWatch : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned; both must outlive the watch. It is on.
    ModelWatch(HostSession& session, ModelReload& reload, QObject* parent = nullptr);

    bool isEnabled() const { return _enabled; }
    /// The files that are watched.
    QStringList files() const { return _stamps.keys(); }

    void setEnabled(bool enabled);
    /// How long a file must be left alone, in milliseconds; 300 at first.
    void setPatience(int milliseconds);

private:
    /// What changes when a file is written.
    struct Stamp
    {
        QDateTime modified;
        qint64 size = -1;
        quint64 identity = 0;

        friend bool operator==(const Stamp&, const Stamp&) = default;
    };

    static Stamp stampOf(const QString& path);
    void watchScene();
    void compare();
    void reloadChanged();

    ModelReload& _reload;
    QFileSystemWatcher _watcher;
    QTimer _refresh;
    QTimer _patience;
    QHash<QString, Stamp> _stamps;
    QSet<QString> _changed;
    bool _enabled = true;
};
