// SPDX-License-Identifier: MIT

#include "host/commands/CO_CommandAccumScope.h"
#include "host/commands/CO_CommandManager.h"
#include "host/commands/CO_MacroCommand.h"
#include "host/models/TD_TransformManipulators.h"
#include "host/scene/MO_Node.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/selection/SLB_ManipContext.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_SubSelectionUtil.h"
#include "host/services/PLUG_Services.h"
#include "responder/GT_CurrentSubnode.h"
#include "responder/GT_Graph3DResponder.h"

#include <memory>

namespace {

using Manipulator = TD_Module3dTransformManipulator;
using SetFlag = void (Manipulator::*)(const SLB_ManipContext&, SLB_NodeInterface*, bool);
using StateQuery = bool (SLB_NodeWith3DSubNode::*)(double, int, std::uint32_t&) const;

/// Sets a flag of the sub-selected subnodes by a macro of its own.
void setFlag(SLB_ManipContext& context, Manipulator& manipulator, SLB_NodeInterface* selected,
             SetFlag flag, bool value, const QString& name)
{
    auto macro = std::make_unique<CO_OrCommand>(false);
    context.attachMacro(macro.get());
    (manipulator.*flag)(context, selected, value);
    context.attachMacro(nullptr);
    if (!macro->empty())
        context.session()->commandManager()->execute(macro.release(), name);
}

/// Sets the flag. One that is taken away gives the other one back, so that no subnode is ever
/// disabled and has its shape hidden at once.
void setFlags(SetFlag flag, SetFlag otherFlag, bool value, const QString& name)
{
    SLB_NodeInterface* selected = GT_CurrentSubnode::selected();
    if (!selected)
        return;
    const std::unique_ptr<Manipulator> manipulator(
        TD_Transformation3dUtil::createTransformation3dManipulator(selected));
    SC_SessionContext* session = PLUG_Services::getSessionContext();
    if (!manipulator || !session)
        return;
    SLB_ManipContext context = GT_CurrentSubnode::manipContext(session, *selected);
    const CO_CommandAccumScope step(session->commandManager(), name);
    setFlag(context, *manipulator, selected, flag, value, name);
    if (!value)
        setFlag(context, *manipulator, selected, otherFlag, true, name);
}

/// Whether any sub-selected subnode is in another state.
bool anyDiffers(StateQuery query, bool value)
{
    SLB_NodeWith3DSubNode* node = GT_CurrentSubnode::selectedWithSubnodes();
    if (!node)
        return false;
    const std::unique_ptr<Manipulator> manipulator(
        TD_Transformation3dUtil::createTransformation3dManipulator(node));
    SC_SessionContext* session = PLUG_Services::getSessionContext();
    if (!manipulator || !session)
        return false;
    const SLB_ManipContext context = GT_CurrentSubnode::manipContext(session, *node);
    const std::uint32_t wanted = value ? 0 : 1;
    for (const int id : SL_SubSelectionUtil::getSubSelectedIds(node)) {
        std::uint32_t state = 0;
        (node->*query)(context.frame(), id, state);
        if (state != wanted)
            return true;
    }
    return false;
}

} // namespace

void GT_Graph3DResponder::setSubnodeVisibility(bool visible) const
{
    setFlags(&Manipulator::setVisible, &Manipulator::setLocalVisible, visible,
             visible ? tr("Enable Subnode") : tr("Disable Subnode"));
}

void GT_Graph3DResponder::setSubnodeLocalVisibility(bool visible) const
{
    setFlags(&Manipulator::setLocalVisible, &Manipulator::setVisible, visible,
             visible ? tr("Show Subnode Shape") : tr("Hide Subnode Shape"));
}

bool GT_Graph3DResponder::selectedSubnodesShareVisibilityState(bool visible) const
{
    return anyDiffers(&SLB_NodeWith3DSubNode::subNodeVisibility, visible);
}

bool GT_Graph3DResponder::selectedSubnodesShareLocalVisibilityState(bool visible) const
{
    return anyDiffers(&SLB_NodeWith3DSubNode::subNodeLocalVisibility, visible);
}

void GT_Graph3DResponder::onActionShowSubnodeShape()
{
    setSubnodeLocalVisibility(true);
}

void GT_Graph3DResponder::onActionShowSubnodeShapeValidate(AC_ActionInfo* info)
{
    info->setEnabled(selectedSubnodesShareLocalVisibilityState(true));
}

void GT_Graph3DResponder::onActionHideSubnodeShape()
{
    setSubnodeLocalVisibility(false);
}

void GT_Graph3DResponder::onActionHideSubnodeShapeValidate(AC_ActionInfo* info)
{
    info->setEnabled(selectedSubnodesShareLocalVisibilityState(false));
}

void GT_Graph3DResponder::onActionEnableSubnode()
{
    setSubnodeVisibility(true);
}

void GT_Graph3DResponder::onActionEnableSubnodeValidate(AC_ActionInfo* info)
{
    info->setEnabled(selectedSubnodesShareVisibilityState(true));
}

void GT_Graph3DResponder::onActionDisableSubnode()
{
    setSubnodeVisibility(false);
}

void GT_Graph3DResponder::onActionDisableSubnodeValidate(AC_ActionInfo* info)
{
    info->setEnabled(selectedSubnodesShareVisibilityState(false));
}
