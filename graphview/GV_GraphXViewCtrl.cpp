// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXViewCtrl.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_UiHeaderNode.h"
#include "graphview/GV_UiSgNode.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_Vq3dCelGetter.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_SubSelectionUtil.h"
#include "host/services/PLUG_EditionStackInterface.h"
#include "host/services/PLUG_Services.h"

#include <limits>
#include <unordered_set>

namespace {

using ModelList = GV_GraphUiInfo::ModelList;

/// The model that the element shows at the current frame of its scene; null when it shows none.
CEL_SharedPtr<TD_CelVq3d> currentModel(MO_ElementModule* element, const SC_SessionContext* session)
{
    TD_Vq3dCelGetter getter(session->currentFrameInterface()->frameContext(element->sceneCommon()));
    element->accept(getter);
    return getter.celPtr();
}

/// Collects the elements of a scene that show a 3D model at the current frame, each with that
/// model, and notes which of them was selected first and which last. Lives for one walk.
class ModelCollector : public MO_ModuleVisitor
{
public:
    explicit ModelCollector(const SC_SessionContext* session)
        : _session(session)
    {
    }

    using MO_ModuleVisitor::visit;
    void visit(MO_ElementModule* element) override
    {
        CEL_SharedPtr<TD_CelVq3d> cel = currentModel(element, _session);
        if (!cel || !_collected.insert(element).second)
            return;
        _models.emplace_back(element, std::move(cel));
        if (const SLB_NodeInterface* selected = element->selInterface())
            noteOrder(element, selected->orderId());
    }

    /// In the order of visiting, each element once.
    const ModelList& models() const { return _models; }
    /// Null when none of the models is selected.
    const MO_ElementModule* firstSelectedModel() const { return _firstSelectedModel; }
    const MO_ElementModule* lastSelectedModel() const { return _lastSelectedModel; }

private:
    void noteOrder(const MO_ElementModule* element, unsigned int orderId)
    {
        if (orderId > _maximumOrderId) {
            _maximumOrderId = orderId;
            _lastSelectedModel = element;
        }
        if (orderId < _minimumOrderId) {
            _minimumOrderId = orderId;
            _firstSelectedModel = element;
        }
    }

    const SC_SessionContext* _session;
    ModelList _models;
    unsigned int _minimumOrderId = std::numeric_limits<unsigned int>::max();
    const MO_ElementModule* _firstSelectedModel = nullptr;
    unsigned int _maximumOrderId = 0;
    const MO_ElementModule* _lastSelectedModel = nullptr;
    std::unordered_set<const MO_ElementModule*> _collected;
};

TUScene* sceneOfEditionStack()
{
    const PLUG_EditionStackInterface* stack = PLUG_Services::getEditionStackInterface();
    return stack ? stack->currentScene() : nullptr;
}

/// Lets the scene's modules be collected; a scene that is not known yet is asked for again.
void collectModels(TUScene*& scene, ModelCollector& collector)
{
    if (!scene)
        scene = sceneOfEditionStack();
    if (scene)
        scene->accept(collector);
}

/// Refreshes the headers of changed elements and notes whether there were any.
class ModelNodeIdentifier : public GV_HeaderVisitor
{
public:
    explicit ModelNodeIdentifier(const TUNodeSet& nodes)
        : _nodes(nodes)
    {
    }

    using GV_HeaderVisitor::visit;
    void visit(GV_UiHeaderNode* header) override
    {
        const MO_ElementModule* element = header->model();
        if (element && _nodes.contains(element)) {
            header->setEditable(element->isEditable());
            _changed = true;
        }
    }

    bool changed() const { return _changed; }

private:
    const TUNodeSet& _nodes;
    bool _changed = false;
};

/// Collects the headers of renamed elements.
class NewNameNodeCollector : public GV_HeaderVisitor
{
public:
    explicit NewNameNodeCollector(const TUNodeSet& nodes)
        : _nodes(nodes)
    {
    }

    using GV_HeaderVisitor::visit;
    void visit(GV_UiHeaderNode* header) override
    {
        const MO_ElementModule* element = header->model();
        if (element && _nodes.contains(element))
            _headers.insert(header);
    }

    const std::set<GV_UiHeaderNode*>& headers() const { return _headers; }

private:
    const TUNodeSet& _nodes;
    std::set<GV_UiHeaderNode*> _headers;
};

} // namespace

GV_GraphXViewCtrl::GV_GraphXViewCtrl(GV_GraphXViewQt* view, SC_SessionContext* session)
    : _view(view)
    , _uiInfo(std::make_unique<GV_GraphUiInfo>())
    , _sessionContext(session)
    , _currentScene(sceneOfEditionStack())
    , _extendedDisplay(
          PR_Preference::instance()->getBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), false))
{
}

GV_GraphXViewCtrl::~GV_GraphXViewCtrl() = default;

void GV_GraphXViewCtrl::UpdateFromSelection(SL_Selection*)
{
}

void GV_GraphXViewCtrl::onAnimateSelectedSubNodes()
{
}

bool GV_GraphXViewCtrl::updateUiInfo(const ModelList& models, const MO_ElementModule* preferred)
{
    const QRectF before = _view->mainItem()->boundingRect();
    if (!_uiInfo->updateGraphUiInfo(models, preferred, _extendedDisplay))
        return false;
    _view->prepareGeometryChange(before);
    _view->updateNavigatorMatrix();
    return true;
}

void GV_GraphXViewCtrl::selectionChanged()
{
    ModelCollector collector(_sessionContext);
    collectModels(_currentScene, collector);
    populateSelected3dModules(collector.models());
    updateUiInfo(collector.models(), collector.firstSelectedModel());

    _uiInfo->clearSelection(false);
    if (_selected3dModules.empty()) {
        _view->refreshView();
        return;
    }
    for (MO_ElementModule* element : _selected3dModules)
        _uiInfo->setHeaderNodeSelected(element);
    subSelectionChanged();
}

void GV_GraphXViewCtrl::currentFrameChanged()
{
    ++_settingsRevision;
    ModelCollector collector(_sessionContext);
    collectModels(_currentScene, collector);
    populateSelected3dModules(collector.models());
    // Unlike after a selection, moving in time keeps to the model that was worked on last.
    updateUiInfo(collector.models(), collector.lastSelectedModel());
}

void GV_GraphXViewCtrl::currentSceneChanged(TUScene* scene)
{
    _currentScene = scene;
    currentFrameChanged();
}

void GV_GraphXViewCtrl::networkChanged()
{
    ModelCollector collector(_sessionContext);
    collectModels(_currentScene, collector);
    if (updateUiInfo(collector.models(), collector.firstSelectedModel()))
        _view->refreshView();
}

void GV_GraphXViewCtrl::subSelectionChanged()
{
    if (_selected3dModules.empty()) {
        _uiInfo->clearSelection(false);
        return;
    }
    _uiInfo->clearSelection(true);
    const MO_ElementModule* element = _uiInfo->visibleGraphModelNode();
    if (!element)
        return;
    const SLB_NodeInterface* selected = element->selInterface();
    if (selected && selected->hasSubSelection()) {
        for (const int id : SL_SubSelectionUtil::getSubSelectedIds(selected)) {
            AT_ModelNodeKey key;
            if (element->getNodeKeyForSelId(id, key))
                _uiInfo->setFirstNodeWithNameSelected(key.name());
        }
    }
    _view->refreshView();
}

void GV_GraphXViewCtrl::nodesChanged(const TUNodeSet& nodes)
{
    ModelNodeIdentifier identifier(nodes);
    _uiInfo->accept(identifier);
    if (!identifier.changed())
        return;
    ++_settingsRevision;
    _view->refreshView();
}

void GV_GraphXViewCtrl::nodesNameChanged(const TUNodeSet& nodes)
{
    NewNameNodeCollector collector(nodes);
    _uiInfo->accept(collector);
    if (collector.headers().empty())
        return;
    _uiInfo->updateHeaderNodesName(collector.headers());
    _view->refreshView();
}

void GV_GraphXViewCtrl::emitAndRefresh()
{
    TUSceneChangeManager* changes = _sessionContext->changeManager();
    changes->emitSelectionChanged();
    changes->emitSubSelectionChanged();
    changes->notify();
    _view->refreshView();
}

void GV_GraphXViewCtrl::buildPickIdsFromUiSgNode(const MO_ElementModule* element,
                                                 const std::set<GV_UiSgNode*>& nodes,
                                                 std::set<int>& ids) const
{
    for (const GV_UiSgNode* node : nodes) {
        int id = 0;
        if (element && element->getSelIdForNodeKey(AT_ModelNodeKey(node->name()), id))
            ids.insert(id);
    }
}

void GV_GraphXViewCtrl::populateSelected3dModules(const ModelList& models)
{
    _selected3dModules.clear();
    for (const auto& [element, cel] : models) {
        if (element->selected())
            _selected3dModules.insert(element);
    }
}

CEL_SharedPtr<TD_CelVq3d> GV_GraphXViewCtrl::getVq3dCelRep(MO_Node* node) const
{
    auto* element = dynamic_cast<MO_ElementModule*>(node);
    return element ? currentModel(element, _sessionContext) : nullptr;
}
