// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

class QSettings;

/// The files that were opened last, models and scenes alike: at most ten, the newest first, each
/// once. Files that are not there any more stay until they are cleared, since they may be on a
/// drive that comes back.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    /// The store is not owned; null keeps the list for this run only.
    explicit RecentFiles(QSettings* store, QObject* parent = nullptr);

    /// Absolute and clean.
    const QStringList& paths() const { return _paths; }

    /// A relative path is taken from the current folder; an empty one is ignored.
    void add(const QString& path);
    void clearMissing();
    void clear();

signals:
    void changed();

private:
    void setPaths(const QStringList& paths);

    QSettings* _store;
    QStringList _paths;
};
