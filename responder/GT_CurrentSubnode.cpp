// SPDX-License-Identifier: MIT

#include "responder/GT_CurrentSubnode.h"

#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_KeyNodeFinders.h"
#include "host/models/TD_Model3DUtils.h"
#include "host/models/TD_Vq3dCelGetter.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/selection/SLB_ManipContext.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_SelectionUtil.h"
#include "host/selection/SL_SubSelectionUtil.h"
#include "host/services/PLUG_Services.h"

SLB_NodeInterface* GT_CurrentSubnode::selected()
{
    const MO_Node* node = SL_SelectionUtil::getFirstNode(PLUG_Services::getSelection());
    return node ? node->selInterface() : nullptr;
}

SLB_NodeWith3DSubNode* GT_CurrentSubnode::selectedWithSubnodes()
{
    SLB_NodeInterface* node = selected();
    return node && node->hasSubSelection() ? dynamic_cast<SLB_NodeWith3DSubNode*>(node) : nullptr;
}

osg::NodePtr GT_CurrentSubnode::sceneGraphNode()
{
    const SLB_NodeWith3DSubNode* node = selectedWithSubnodes();
    const SC_SessionContext* session = PLUG_Services::getSessionContext();
    AT_ModelNodeKey key;
    if (!node || !session ||
        !node->subNodeKey(SL_SubSelectionUtil::getFirstSubSelectedId(node), key))
        return osg::NullFC;
    MO_ElementModule* element = TD_Model3DUtils::getParentElement(node->selectable());
    if (!element)
        return osg::NullFC;
    TD_Vq3dCelGetter getter(session->currentFrameInterface()->frameContext(element->sceneCommon()));
    element->accept(getter);
    const CEL_SharedPtr<TD_CelVq3d> cel = getter.celPtr();
    return cel ? TD_FindKeyNode()(cel->rootNodePtr(), key) : osg::NodePtr();
}

SLB_ManipContext GT_CurrentSubnode::manipContext(SC_SessionContext* session,
                                                 const SLB_NodeInterface& node)
{
    return SLB_ManipContext(session, node.selectable()->scene(), eAtCurrentFrame, 0.0);
}
