// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <functional>

class HostSession;

/// Tells whether the session's scene is another than it was when it was last called unmodified.
/// Selections and frames do not count, neither as undo steps. Changes that undo and redo take back
/// cancel out, which only a look at the whole scene can tell for sure, since commands may tell what
/// they change before the history has moved. Another scene starts unmodified.
class SceneChanges : public QObject
{
    Q_OBJECT

public:
    /// The same for the same content of the scene, and never empty.
    using Fingerprint = std::function<QByteArray()>;

    /// The session is not owned and must outlive this object.
    SceneChanges(HostSession& session, Fingerprint fingerprint, QObject* parent = nullptr);

    bool isModified() const { return _modified; }

    /// The scene as it is now is the one to compare with.
    void setUnmodified();
    /// Nothing that undo and redo can do makes the scene unmodified.
    void setModified();
    /// While set, changes do not count.
    void setIgnoring(bool ignoring);

signals:
    /// The scene changed, whether or not it was modified before. Several may come for one change.
    void changed();
    void modifiedChanged(bool modified);

private:
    void noteContent();
    void noteHistory();
    void setIsModified(bool modified);

    HostSession& _session;
    Fingerprint _fingerprint;
    /// Empty when there is no scene to compare with.
    QByteArray _unmodified;
    bool _modified = false;
    bool _ignoring = false;
};
