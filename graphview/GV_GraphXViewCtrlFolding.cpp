// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "host/preferences/PR_Preference.h"

namespace {

/// Folds or unfolds what it visits, and notes whether that changed anything.
class Collapsor : public GV_VisibleTreeVisitor
{
public:
    explicit Collapsor(bool collapsed)
        : _collapsed(collapsed)
    {
    }

    using GV_VisibleTreeVisitor::visit;
    void visit(GV_UiNode* node) override
    {
        if (node->isCollapsed() == _collapsed)
            return;
        node->setCollapsed(_collapsed);
        _changed = true;
    }

    bool changed() const { return _changed; }

private:
    bool _collapsed;
    bool _changed = false;
};

/// Notes which fold states there are.
class CollapsedStateCollector : public GV_VisibleTreeVisitor
{
public:
    using GV_VisibleTreeVisitor::visit;
    void visit(GV_UiNode* node) override
    {
        (node->isCollapsed() ? _foundCollapsed : _foundExpanded) = true;
    }

    bool foundCollapsed() const { return _foundCollapsed; }
    bool foundExpanded() const { return _foundExpanded; }

private:
    bool _foundCollapsed = false;
    bool _foundExpanded = false;
};

} // namespace

void GV_GraphXViewCtrl::setAllCollapsedState(bool collapsed)
{
    Collapsor collapsor(collapsed);
    _uiInfo->accept(collapsor);
    if (!collapsor.changed())
        return;
    _view->prepareGeometryChange();
    _uiInfo->calculateGeometricData();
    _view->updateNavigatorMatrix();
}

bool GV_GraphXViewCtrl::hasSubNodeWithCollapsedState(bool collapsed) const
{
    // Asked for both states whenever actions are validated, hence remembered.
    const GV_UiNode* root = _uiInfo->rootUiNode();
    FoldStates& states = _foldStates;
    if (states.root != root || states.treeRevision != GV_UiNode::treeRevision() ||
        states.layoutRevision != GV_UiNode::layoutRevision()) {
        CollapsedStateCollector collector;
        _uiInfo->accept(collector);
        states = {root, GV_UiNode::treeRevision(), GV_UiNode::layoutRevision(),
                  collector.foundCollapsed(), collector.foundExpanded()};
    }
    return collapsed ? states.collapsed : states.expanded;
}

void GV_GraphXViewCtrl::onToggleDisplayMode()
{
    _extendedDisplay = !_extendedDisplay;
    PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"),
                                            _extendedDisplay);
    if (_uiInfo->isEmpty())
        return;
    const QRectF before = _view->mainItem()->boundingRect();
    if (_uiInfo->displayModeChanged(_extendedDisplay)) {
        _view->prepareGeometryChange(before);
        _view->updateNavigatorMatrix();
    } else {
        _view->refreshView();
    }
}
