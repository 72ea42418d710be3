// SPDX-License-Identifier: MIT
#include "workbench/files/ModelReload.h"

#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/scene/SceneElements.h"
#include "referencehost/session/HostSession.h"
#include "workbench/files/ModelLoader.h"
#include "workbench/files/SceneDocument.h"

#include <QPointer>
#include <QUndoStack>

namespace {

/// The sub-selection of a selected element by keys, to be brought back when listeners that found
/// parts gone have changed it.
class KeptSubSelection
{
public:
    explicit KeptSubSelection(MO_ElementModule& element)
        : _element(&element)
        , _ids(element.selInterface()->subSelectedIds())
    {
    }

    void restore() const
    {
        SLB_NodeInterface* selected = _element.get() ? _element->selInterface() : nullptr;
        if (!selected || selected->subSelectedIds() == _ids)
            return;
        selected->clearSubSelection();
        for (const int id : _ids)
            selected->subSelect(id, true);
    }

private:
    UT_SharedWeakPtr<MO_ElementModule> _element;
    /// An element gives the same key the same id for all its life.
    std::vector<int> _ids;
};

} // namespace

struct ModelReload::Exchange
{
    QString path;
    CEL_SharedPtr<TD_CelVq3d> model;
};

ModelReload::ModelReload(SceneDocument& document, QObject* parent)
    : QObject(parent)
    , _document(document)
{
    SC_SessionContext& context = document.session().context();
    connect(context.commandManager()->history(), &QUndoStack::indexChanged, this,
            &ModelReload::exchangeOutdated);
    connect(context.changeManager(), &TUSceneChangeManager::currentSceneChanged, this,
            &ModelReload::forget);
}

void ModelReload::forget()
{
    _latest.clear();
    _outdated.clear();
}

void ModelReload::exchangeOutdated()
{
    if (_outdated.empty())
        return;
    HostSession& session = _document.session();
    _document.withoutModifying([&] {
        for (MO_ElementModule* element : elementsOf(session.currentScene())) {
            for (const MO_ElementModule::Exposure& exposure : element->exposures()) {
                const auto it = _outdated.find(exposure.model);
                if (it != _outdated.end())
                    element->exposeModel(exposure.firstFrame, exposure.lastFrame,
                                         _latest[it->second]);
            }
        }
        session.context().changeManager()->notify();
    });
}

QStringList ModelReload::filesOf(const MO_ElementModule* element) const
{
    QStringList files;
    if (!element)
        return files;
    for (const MO_ElementModule::Exposure& exposure : element->exposures()) {
        const QString path = _document.loader().library().originOf(exposure.model).path;
        if (!path.isEmpty() && !files.contains(path))
            files += path;
    }
    return files;
}

QStringList ModelReload::filesOfScene() const
{
    QStringList files;
    for (const MO_ElementModule* element : elementsOf(_document.session().currentScene()))
        files += filesOf(element);
    files.removeDuplicates();
    return files;
}

void ModelReload::reload(const MO_ElementModule* element)
{
    reload(filesOf(element));
}

void ModelReload::reload(const QStringList& paths, Failures failures)
{
    const QPointer<ModelReload> alive(this);
    _document.loader().read(paths, [alive, failures](const ModelLoader::Reading& reading) {
        if (!alive)
            return;
        QStringList done;
        for (const auto& [path, model] : reading.models) {
            alive->_failing.remove(path);
            alive->exchange({path, model});
            done += path;
        }
        for (const auto& [path, message] : reading.errors) {
            const bool wasFailing = alive->_failing.contains(path);
            alive->_failing.insert(path);
            if (failures == Failures::TellAll || !wasFailing)
                emit alive->failed(path, message);
        }
        emit alive->finished(done);
    });
}

void ModelReload::exchange(const Exchange& exchange)
{
    HostSession& session = _document.session();
    const ModelLibrary& library = _document.loader().library();
    emit aboutToExchange();
    for (const CEL_SharedPtr<TD_CelVq3d>& model : library.modelsOf(exchange.path)) {
        if (model != exchange.model)
            _outdated.insert_or_assign(model, exchange.path);
    }
    _latest[exchange.path] = exchange.model;
    std::vector<KeptSubSelection> subSelections;
    for (MO_ElementModule* element : elementsOf(session.currentScene())) {
        if (element->selected())
            subSelections.emplace_back(*element);
    }
    _document.withoutModifying([&] {
        for (MO_ElementModule* element : elementsOf(session.currentScene())) {
            for (const MO_ElementModule::Exposure& exposure : element->exposures()) {
                if (library.isFrom(exposure.model, exchange.path))
                    element->exposeModel(exposure.firstFrame, exposure.lastFrame, exchange.model);
            }
        }
        session.context().changeManager()->notify();
    });
    const SL_Selection::BatchSelectionModeScope scope(session.context().selection());
    for (const KeptSubSelection& subSelection : subSelections)
        subSelection.restore();
}
