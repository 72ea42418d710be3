// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_SelectionModifier.h"
#include "graphview/GV_UiSgNode.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "host/selection/SL_SelectionUtil.h"

#include <QCoreApplication>

namespace {

/// Sub-selects every key node that has an id.
class AllSubNodeSelector : public GV_GraphVisitor
{
public:
    AllSubNodeSelector(const MO_ElementModule* element, SLB_NodeInterface* selected)
        : _element(element)
        , _selected(selected)
    {
    }

    using GV_GraphVisitor::visit;
    void visit(GV_UiSgNode* node) override
    {
        int id = 0;
        if (node->isEditable() && !node->name().isEmpty() &&
            _element->getSelIdForNodeKey(AT_ModelNodeKey(node->name()), id))
            _selected->subSelect(id, true);
    }

private:
    const MO_ElementModule* _element;
    SLB_NodeInterface* _selected;
};

/// Changes what of the element is selected, as a click on the node does while extending.
void extendSelection(SL_Selection* selection, MO_ElementModule* element, const GV_UiNode* node)
{
    SLB_NodeInterface* selected = element->selInterface();
    if (node->isHeaderNode()) {
        if (selected)
            SL_SelectionUtil::removeFromSelection(selection, selected);
        else
            SL_SelectionUtil::addToSelection(selection, element);
        return;
    }
    int id = 0;
    if (selected && element->getSelIdForNodeKey(AT_ModelNodeKey(node->name()), id))
        selected->subSelect(id, true);
}

/// Selects the element alone, and of it the node alone.
void replaceSelection(SL_Selection* selection, MO_ElementModule* element, const GV_UiNode* node)
{
    const QString name = node->isHeaderNode() ? QString() : node->name();
    SL_SelectionUtil::clear(selection);
    SL_SelectionUtil::addToSelection(selection, element);
    SLB_NodeInterface* selected = element->selInterface();
    int id = 0;
    if (selected && !name.isEmpty() && element->getSelIdForNodeKey(AT_ModelNodeKey(name), id))
        selected->subSelect(id, false);
}

} // namespace

GV_GraphXViewQt::eMouseAction GV_GraphXViewCtrl::onMouseDown(Math::Vector2d& point)
{
    int graphIx = -1;
    GV_UiNode* node = nullptr;
    GV_UiNode::eSelectionType type = GV_UiNode::eEmptySelection;
    if (_uiInfo->getNodeSelectionInfo(point, graphIx, node, type)) {
        if (type == GV_UiNode::eNodeSelection) {
            return onSelect(graphIx, node) ? GV_GraphXViewQt::eMouseHandled
                                           : GV_GraphXViewQt::eMouseNone;
        }
        if (type == GV_UiNode::eCollapsingControlSelection) {
            onControl(node);
            return GV_GraphXViewQt::eMouseHandled;
        }
    }
    if (!GV_isExtendingSelection())
        onDeselectTree();
    return GV_GraphXViewQt::eMouseNone;
}

bool GV_GraphXViewCtrl::onSelect(int graphIx, GV_UiNode* node)
{
    if (!node->isEditable())
        return false;
    const bool extend = GV_isExtendingSelection();
    MO_ElementModule* element = _uiInfo->modelNode(graphIx);
    if (!element)
        return false;

    SL_Selection* selection = _sessionContext->selection();
    const SL_Selection::BatchSelectionModeScope scope(selection);
    if (extend)
        extendSelection(selection, element, node);
    else
        replaceSelection(selection, element, node);
    UpdateFromSelection(selection);
    return true;
}

void GV_GraphXViewCtrl::onControl(GV_UiNode* node)
{
    _view->prepareGeometryChange();
    node->setCollapsed(!node->isCollapsed());
    _uiInfo->calculateGeometricData();
    _view->updateNavigatorMatrix();
}

void GV_GraphXViewCtrl::dropSelection(SL_Selection* selection)
{
    SL_SelectionUtil::clear(selection);
    _selected3dModules.clear();
    _uiInfo->clearSelection(false);
}

void GV_GraphXViewCtrl::onNothing()
{
    SL_Selection* selection = _sessionContext->selection();
    if (GV_isExtendingSelection() || !selection || selection->empty())
        return;
    dropSelection(selection);
    emitAndRefresh();
}

void GV_GraphXViewCtrl::onDeselectTree()
{
    MO_ElementModule* element = _uiInfo->visibleGraphModelNode();
    SL_Selection* selection = _sessionContext->selection();
    const SL_Selection::BatchSelectionModeScope scope(selection);
    if (selection && !selection->empty())
        dropSelection(selection);
    // The tree stays on screen as long as its element is selected.
    if (element)
        SL_SelectionUtil::addToSelection(selection, element);
}

bool GV_GraphXViewCtrl::onDeselectAll(bool emitChanges)
{
    SL_Selection* selection = _sessionContext->selection();
    if (!selection || selection->empty())
        return false;
    dropSelection(selection);
    if (emitChanges)
        emitAndRefresh();
    return true;
}

bool GV_GraphXViewCtrl::onSelectAll()
{
    const MO_ElementModule* element = _uiInfo->visibleGraphModelNode();
    SLB_NodeInterface* selected = element ? element->selInterface() : nullptr;
    if (selected && _uiInfo->rootUiNode() && _sessionContext->selection()) {
        selected->clearSubSelection();
        AllSubNodeSelector selector(element, selected);
        _uiInfo->accept(selector);
    }
    TUSceneChangeManager* changes = _sessionContext->changeManager();
    changes->emitSubSelectionChanged();
    changes->notify();
    _view->refreshView();
    return true;
}

QString GV_GraphXViewCtrl::fullNodeNameAtModelPoint(const Math::Point2d& point) const
{
    int graphIx = -1;
    GV_UiNode* node = nullptr;
    GV_UiNode::eSelectionType type = GV_UiNode::eEmptySelection;
    if (!_uiInfo->getNodeSelectionInfo({point.x, point.y}, graphIx, node, type) ||
        type != GV_UiNode::eNodeSelection)
        return {};
    if (node->isHeaderNode())
        return QCoreApplication::translate("GraphXView", "Layer ") + node->name();
    return node->displayName().isEmpty() ? QString() : node->name();
}
