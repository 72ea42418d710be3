// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_WorldViewQt.h"

#include <utility>

namespace {

constexpr int cornerCount = 4;

} // namespace

void GV_GraphXViewQt::selectAll()
{
    _controller->onSelectAll();
}

void GV_GraphXViewQt::deselect()
{
    _controller->onDeselectAll(true);
}

void GV_GraphXViewQt::onActionFrameSelectedValidate(AC_ActionInfo* info)
{
    info->setEnabled(!std::as_const(*_controller->uiInfo()).selectedNodes().empty());
}

void GV_GraphXViewQt::onActionToggleDislayMode()
{
    _controller->onToggleDisplayMode();
}

void GV_GraphXViewQt::onActionToggleDislayModeValidate(AC_ActionInfo* info)
{
    info->setEnabled(true);
    info->setChecked(_controller->isExtendedDisplay());
}

void GV_GraphXViewQt::onActionShowNodes()
{
    _controller->onSetNodesVisible(true);
}

void GV_GraphXViewQt::onActionShowNodesValidate(AC_ActionInfo* info)
{
    info->setEnabled(_controller->hasSelectedSubNodeWithState(GV_GraphXViewCtrl::eHidden));
}

void GV_GraphXViewQt::onActionHideNodes()
{
    _controller->onSetNodesVisible(false);
}

void GV_GraphXViewQt::onActionHideNodesValidate(AC_ActionInfo* info)
{
    info->setEnabled(_controller->hasSelectedSubNodeWithState(GV_GraphXViewCtrl::eVisible));
}

void GV_GraphXViewQt::onActionHideAllOtherNodes()
{
    _controller->onSetOtherNodesVisible(false);
}

void GV_GraphXViewQt::onActionHideAllOtherNodesValidate(AC_ActionInfo* info)
{
    info->setEnabled(_controller->hasUnSelectedSubNodeWithState(GV_GraphXViewCtrl::eVisible));
}

void GV_GraphXViewQt::onActionCollapseAllNodes()
{
    _controller->setAllCollapsedState(true);
}

void GV_GraphXViewQt::onActionCollapseAllNodesValidate(AC_ActionInfo* info)
{
    info->setEnabled(_controller->hasSubNodeWithCollapsedState(false));
}

void GV_GraphXViewQt::onActionExpandAllNodes()
{
    _controller->setAllCollapsedState(false);
}

void GV_GraphXViewQt::onActionExpandAllNodesValidate(AC_ActionInfo* info)
{
    info->setEnabled(_controller->hasSubNodeWithCollapsedState(true));
}

bool GV_GraphXViewQt::isWorldViewShown() const
{
    // Also true while the panel itself is behind another one.
    return _worldView->isVisibleTo(this);
}

void GV_GraphXViewQt::onActionShowHideWorldView()
{
    _worldView->setVisible(!isWorldViewShown());
}

void GV_GraphXViewQt::onActionShowHideWorldViewValidate(AC_ActionInfo* info)
{
    info->setEnabled(true);
    info->setText(isWorldViewShown() ? tr("Hide Navigator") : tr("Show Navigator"));
}

void GV_GraphXViewQt::onActionMoveWorld(int corner)
{
    if (corner >= cornerCount || !isWorldViewShown())
        return;
    _worldViewCorner = corner;
    _worldView->moveToCorner(corner);
}

void GV_GraphXViewQt::onActionMoveWorldValidate(int corner, AC_ActionInfo* info)
{
    info->setEnabled(isWorldViewShown());
    info->setChecked(corner == _worldViewCorner);
}

void GV_GraphXViewQt::onActionAnimateSubnode()
{
}

void GV_GraphXViewQt::onActionAnimateSubnodeValidate(AC_ActionInfo*)
{
}
