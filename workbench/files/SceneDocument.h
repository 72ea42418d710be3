// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "workbench/files/SceneChanges.h"
#include "workbench/scenefile/SceneFileReader.h"

#include <QObject>
#include <functional>
#include <map>
#include <optional>

class HostSession;
class ModelLoader;
class TD_CelVq3d;

/// The file that the session's scene belongs to: opening, saving, and whether there is anything to
/// save. A file is never replaced by less than it holds, nor by what does not know its latest
/// content, unless the caller says so.
class SceneDocument : public QObject
{
    Q_OBJECT

public:
    /// Whether somebody agreed that a file is replaced although something of it will be lost.
    enum class Consent
    {
        NotGiven,
        Given
    };
    /// A scene as it is kept while it is not saved.
    struct Unsaved
    {
        /// A scene file.
        QByteArray content;
        /// The file that it belongs to; empty when it has none.
        QString path;
        /// What identifies the content of that file when it was last read or written.
        QByteArray seenOnDisk;
        bool needsOtherName = false;
    };

    /// The session and the loader are not owned and must outlive the document. The scene that is
    /// open has no file.
    SceneDocument(HostSession& session, ModelLoader& loader, QObject* parent = nullptr);

    /// Absolute; empty for a scene without a file.
    QString path() const { return _path; }
    /// The file's name without its folder, or a name for a scene that has no file.
    QString title() const;
    bool isModified() const { return _changes.isModified(); }
    bool isOpening() const { return _opening.has_value(); }
    /// Whether the file had problems when it was opened, so that saving would lose something.
    bool needsOtherName() const { return _needsOtherName; }
    /// Whether the file is there with other content than it was last read or written with.
    bool isChangedOnDisk() const;
    /// What was wrong with the file.
    const SceneProblems& problems() const { return _problems; }
    HostSession& session() const { return _session; }
    ModelLoader& loader() const { return _loader; }
    Unsaved unsaved() const;

    /// Closes the scene, saved or not, for an empty one without a file.
    void newScene();
    /// Reads the file and its models, then puts its scene in the place of the one that is open.
    /// openFinished() follows, maybe before this returns. False, and nothing happens, while another
    /// file is being opened.
    bool open(const QString& path);
    /// The same with a scene that was never saved; it counts as modified.
    bool takeUp(const Unsaved& scene);
    /// Without a file, or where consent is needed and not given, this fails. The error becomes one
    /// line, unless it is null.
    bool save(QString* error, Consent consent = Consent::NotGiven);
    /// The path becomes that of the document. Whether another file may be replaced is for the
    /// caller to ask; the document's own needs consent as in save().
    bool saveAs(const QString& path, QString* error, Consent consent = Consent::NotGiven);
    /// What happens in the function does not make the scene modified.
    void withoutModifying(const std::function<void()>& function);

signals:
    void modifiedChanged(bool modified);
    /// Something changed that saving would keep; selections do not count.
    void contentChanged();
    void pathChanged();
    /// The message sums up what was wrong, also after a success; empty when nothing was. After a
    /// failure the scene and the document are as they were.
    void openFinished(bool ok, const QString& message);

private:
    struct Opening
    {
        QString path;
        SceneFileReader::Result read;
        QByteArray seenOnDisk;
        bool needsOtherName = false;
        bool isModified = false;
        int number = 0;
    };

    void begin(Opening opening, const QByteArray& content);
    void finish(const std::map<QString, CEL_SharedPtr<TD_CelVq3d>>& read);
    void abandonOpening(const QString& message);
    void setFile(const QString& path, const QByteArray& seenOnDisk);
    void noteScene();
    QByteArray contentIdentity() const;

    HostSession& _session;
    ModelLoader& _loader;
    SceneChanges _changes;
    QString _path;
    QByteArray _seenOnDisk;
    SceneProblems _problems;
    bool _needsOtherName = false;
    bool _replacingScene = false;
    std::optional<Opening> _opening;
    int _openings = 0;
};
