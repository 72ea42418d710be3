// SPDX-License-Identifier: MIT
#include "workbench/files/SceneDocument.h"

#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"
#include "workbench/files/ModelLoader.h"
#include "workbench/modelstream/OneLine.h"
#include "workbench/scenefile/SameFile.h"
#include "workbench/scenefile/SceneBuilder.h"
#include "workbench/scenefile/SceneCapture.h"
#include "workbench/scenefile/SceneFileWriter.h"
#include "workbench/scenefile/SceneText.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QScopedValueRollback>

namespace {

QByteArray identityOf(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256);
}

/// False, with the error set, when it cannot be read. A pipe or a device might never end.
bool readFile(const QString& path, QByteArray& content, QString& error)
{
    QFile file(path);
    if (QFileInfo(path).exists() && !QFileInfo(path).isFile())
        error = SceneDocument::tr("this is no file");
    else if (!file.open(QIODevice::ReadOnly))
        error = file.errorString();
    else
        content = file.readAll();
    return error.isEmpty();
}

/// Where the model's file is now; empty when it is in neither place.
QString foundFile(const SceneDescription::Model& model)
{
    for (const QString& path : {model.path, model.otherPath}) {
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QString named(const QString& path, const QString& message)
{
    return oneLine(QFileInfo(path).fileName() + QStringLiteral(": ") + message);
}

void setText(QString* error, const QString& text)
{
    if (error)
        *error = text;
}

} // namespace

SceneDocument::SceneDocument(HostSession& session, ModelLoader& loader, QObject* parent)
    : QObject(parent)
    , _session(session)
    , _loader(loader)
    , _changes(session, [this] { return contentIdentity(); })
{
    connect(&_changes, &SceneChanges::modifiedChanged, this, &SceneDocument::modifiedChanged);
    connect(&_changes, &SceneChanges::changed, this, &SceneDocument::contentChanged);
    connect(session.context().changeManager(), &TUSceneChangeManager::currentSceneChanged, this,
            &SceneDocument::noteScene);
}

/// What a file would hold, but for what may change without anything to save.
QByteArray SceneDocument::contentIdentity() const
{
    SceneDescription scene = capturedScene(_session, _loader.library());
    scene.selection.clear();
    scene.frame = 1;
    return identityOf(sceneText(scene, {}));
}

QString SceneDocument::title() const
{
    return _path.isEmpty() ? tr("Untitled") : QFileInfo(_path).fileName();
}

bool SceneDocument::isChangedOnDisk() const
{
    QByteArray content;
    QString error;
    return !_path.isEmpty() && QFileInfo::exists(_path) &&
           (!readFile(_path, content, error) || identityOf(content) != _seenOnDisk);
}

SceneDocument::Unsaved SceneDocument::unsaved() const
{
    const QString folder = _path.isEmpty() ? QString() : QFileInfo(_path).absolutePath();
    return {SceneFileWriter(_session, _loader.library()).bytes(folder), _path, _seenOnDisk,
            _needsOtherName};
}

void SceneDocument::setFile(const QString& path, const QByteArray& seenOnDisk)
{
    _seenOnDisk = seenOnDisk;
    if (path == _path)
        return;
    _path = path;
    emit pathChanged();
}

/// Somebody else opened a scene or closed it.
void SceneDocument::noteScene()
{
    if (_replacingScene)
        return;
    _needsOtherName = false;
    _problems = {};
    setFile({}, {});
}

void SceneDocument::newScene()
{
    if (_opening)
        abandonOpening(tr("%1 was not opened").arg(QFileInfo(_opening->path).fileName()));
    _session.openScene(QStringLiteral("scene"));
}

bool SceneDocument::open(const QString& path)
{
    if (_opening)
        return false;
    Opening opening;
    opening.path = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QByteArray content;
    QString error;
    if (!readFile(opening.path, content, error)) {
        emit openFinished(false, named(path, error));
        return true;
    }
    opening.seenOnDisk = identityOf(content);
    begin(std::move(opening), content);
    return true;
}

bool SceneDocument::takeUp(const Unsaved& scene)
{
    if (_opening)
        return false;
    Opening opening;
    opening.path = scene.path;
    opening.seenOnDisk = scene.seenOnDisk;
    opening.needsOtherName = scene.needsOtherName;
    opening.isModified = true;
    begin(std::move(opening), scene.content);
    return true;
}

void SceneDocument::begin(Opening opening, const QByteArray& content)
{
    const QString folder =
        opening.path.isEmpty() ? QString() : QFileInfo(opening.path).absolutePath();
    opening.read = SceneFileReader::read(content, folder);
    if (!opening.read.error.isEmpty()) {
        emit openFinished(false, named(opening.path, opening.read.error));
        return;
    }
    opening.number = ++_openings;
    _opening = std::move(opening);
    QStringList files;
    for (const SceneDescription::Model& model : _opening->read.scene.models) {
        if (const QString file = foundFile(model); !file.isEmpty() && !files.contains(file))
            files += file;
    }
    const QPointer<SceneDocument> alive(this);
    _loader.read(files, [alive, number = _openings](const ModelLoader::Reading& reading) {
        if (!alive || !alive->_opening || alive->_opening->number != number)
            return;
        if (reading.cancelled)
            alive->abandonOpening(
                tr("%1 was not opened").arg(QFileInfo(alive->_opening->path).fileName()));
        else
            alive->finish(reading.models);
    });
}

void SceneDocument::abandonOpening(const QString& message)
{
    _opening.reset();
    emit openFinished(false, oneLine(message));
}

void SceneDocument::finish(const std::map<QString, CEL_SharedPtr<TD_CelVq3d>>& read)
{
    Opening opening = *std::exchange(_opening, std::nullopt);
    SceneBuilder::Models models;
    for (const SceneDescription::Model& model : opening.read.scene.models) {
        const auto found = read.find(foundFile(model));
        models.push_back(found == read.end() ? nullptr : found->second);
    }
    {
        const QScopedValueRollback replacing(_replacingScene, true);
        withoutModifying([&] {
            SceneBuilder(_session, _loader.library(), opening.read.problems)
                .build(opening.read.scene, models);
        });
    }
    _problems = opening.read.problems;
    _needsOtherName = opening.needsOtherName || !_problems.empty();
    setFile(opening.path, opening.seenOnDisk);
    if (opening.isModified)
        _changes.setModified();
    else
        _changes.setUnmodified();
    emit openFinished(true, _problems.summary(opening.path.isEmpty() ? title() : opening.path));
}

bool SceneDocument::save(QString* error, Consent consent)
{
    if (_path.isEmpty()) {
        setText(error, tr("The scene has no file yet."));
        return false;
    }
    return saveAs(_path, error, consent);
}

bool SceneDocument::saveAs(const QString& path, QString* error, Consent consent)
{
    const QString target = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (isSameFile(target, _path) && consent != Consent::Given) {
        if (_needsOtherName) {
            setText(error, named(_path, tr("saving would lose what could not be opened")));
            return false;
        }
        if (isChangedOnDisk()) {
            setText(error, named(_path, tr("the file was changed by another program")));
            return false;
        }
    }
    const QByteArray content =
        SceneFileWriter(_session, _loader.library()).bytes(QFileInfo(target).absolutePath());
    if (!SceneFileWriter::replaceFile(target, content, error))
        return false;
    _needsOtherName = false;
    _problems = {};
    setFile(target, identityOf(content));
    _changes.setUnmodified();
    return true;
}

void SceneDocument::withoutModifying(const std::function<void()>& function)
{
    _changes.setIgnoring(true);
    function();
    _changes.setIgnoring(false);
}
