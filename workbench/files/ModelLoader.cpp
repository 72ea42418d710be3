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
    _waiting += paths;
    if (!_busy)
        startNext();
}

void ModelLoader::cancel()
{
    _waiting.clear();
    _job.cancel();
}

bool ModelLoader::isBusy() const
{
    return _busy;
}

void ModelLoader::startNext()
{
    _busy = !_waiting.isEmpty();
    if (!_busy) {
        emit finished();
        return;
    }
    _path = _waiting.takeFirst();
    emit started(_path);
    _job.start(_path);
}

void ModelLoader::take(const ImportResult& result)
{
    if (result.succeeded())
        emit loaded(addElement(result));
    else if (!result.cancelled)
        emit failed(result.error);
    startNext();
}

MO_ElementModule* ModelLoader::addElement(const ImportResult& result)
{
    MO_GroupModule& group = *_session.currentScene()->rootGroup();
    auto made =
        std::make_unique<MO_ElementModule>(freeName(group, QFileInfo(_path).completeBaseName()));
    MO_ElementModule* element = made.get();
    // The drawing comes once the element is in the scene, so that listeners hear of both.
    group.insertNode(std::move(made));
    element->exposeModel(firstFrame, lastFrame,
                         std::make_shared<TD_CelVq3d>(osg::NodePtr(result.root)));

    SL_Selection* selection = _session.context().selection();
    if (selection->empty()) {
        const SL_Selection::BatchSelectionModeScope scope(selection);
        selection->add(element);
    }
    _session.context().changeManager()->notify();
    return element;
}
