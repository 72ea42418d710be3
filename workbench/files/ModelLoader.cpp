// SPDX-License-Identifier: MIT

#include "workbench/files/ModelLoader.h"

#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"

#include <QFileInfo>
#include <QSet>
#include <limits>
#include <utility>

namespace {

constexpr int firstFrame = 1;
constexpr int lastFrame = std::numeric_limits<int>::max();

/// The name, with a number behind it where the group already has a node of that name.
QString freeName(const MO_GroupModule& group, const QString& wanted)
{
    QSet<QString> taken;
    for (const MO_Node* node : group.nodes())
        taken.insert(node->instanceName());
    QString name = wanted;
    for (int number = 2; taken.contains(name); ++number)
        name = wanted + u'_' + QString::number(number);
    return name;
}

} // namespace

ModelLoader::ModelLoader(HostSession& session, QObject* parent)
    : QObject(parent)
    , _session(session)
{
    connect(&_job, &ModelImportJob::progress, this, &ModelLoader::progress);
    connect(&_job, &ModelImportJob::finished, this, &ModelLoader::take);
}

void ModelLoader::load(const QStringList& paths)
{
    _requests.push_back({paths, {}, nullptr});
    if (!_busy)
        startNext();
}

void ModelLoader::read(const QStringList& paths, const ReadingDone& done)
{
    if (paths.isEmpty()) {
        done({});
        return;
    }
    _requests.push_back({paths, {}, done});
    if (!_busy)
        startNext();
}

void ModelLoader::cancel()
{
    _cancelled = true;
    for (Request& request : _requests) {
        request.reading.cancelled = request.reading.cancelled || !request.waiting.isEmpty();
        request.waiting.clear();
    }
    _job.cancel();
}

bool ModelLoader::isBusy() const
{
    return _busy;
}

void ModelLoader::startNext()
{
    // Whoever is told here may ask for more files, which then wait for this to come to them, or
    // cancel before the file is under way.
    _busy = true;
    while (!_requests.empty()) {
        if (_requests.front().waiting.isEmpty()) {
            finishRequest();
            continue;
        }
        _cancelled = false;
        _path = _requests.front().waiting.takeFirst();
        emit started(_path);
        if (!_cancelled) {
            _job.start(_path);
            return;
        }
        _requests.front().reading.cancelled = true;
    }
    _busy = false;
    emit finished();
}

void ModelLoader::finishRequest()
{
    const Request request = std::move(_requests.front());
    _requests.pop_front();
    if (request.done)
        request.done(request.reading);
}

void ModelLoader::take(const ImportResult& result)
{
    Request& request = _requests.front();
    CEL_SharedPtr<TD_CelVq3d> model;
    if (result.succeeded()) {
        model = std::make_shared<TD_CelVq3d>(osg::NodePtr(result.root));
        _library.note(model, _path);
    }
    // The file may have been read to its end in the moment of cancelling.
    if (result.cancelled || _cancelled)
        request.reading.cancelled = true;
    else if (request.done && model)
        request.reading.models.insert_or_assign(_path, model);
    else if (request.done)
        request.reading.errors.insert_or_assign(_path, result.error);
    else if (model)
        emit loaded(addElement(model));
    else
        emit failed(result.error);
    startNext();
}

MO_ElementModule* ModelLoader::addElement(const CEL_SharedPtr<TD_CelVq3d>& model)
{
    MO_GroupModule& group = *_session.currentScene()->rootGroup();
    auto made =
        std::make_unique<MO_ElementModule>(freeName(group, QFileInfo(_path).completeBaseName()));
    MO_ElementModule* element = made.get();
    // The drawing comes once the element is in the scene, so that listeners hear of both.
    group.insertNode(std::move(made));
    element->exposeModel(firstFrame, lastFrame, model);

    SL_Selection* selection = _session.context().selection();
    if (selection->empty()) {
        const SL_Selection::BatchSelectionModeScope scope(selection);
        selection->add(element);
    }
    _session.context().changeManager()->notify();
    return element;
}
