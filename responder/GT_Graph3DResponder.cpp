// SPDX-License-Identifier: MIT

#include "responder/GT_Graph3DResponder.h"

#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_KeyNodeFinders.h"
#include "host/models/TD_NodeName.h"
#include "host/scene/MO_Node.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_SelectionUtil.h"
#include "host/services/PLUG_KeyStateInterface.h"
#include "host/services/PLUG_Services.h"
#include "responder/GT_CurrentSubnode.h"

#include <algorithm>
#include <vector>

namespace {

/// The subnodes that have the node's nearest subnode above in common, or, without one, that stand
/// at the top of the scene graph; in scene-graph order.
std::vector<osg::NodePtr> siblingsOf(const osg::NodePtr& node)
{
    std::vector<osg::NodePtr> siblings;
    if (node == osg::NullFC || node->getParent() == osg::NullFC)
        return siblings;
    osg::NodePtr parent = TD_FindParentKeyNode()(node);
    if (parent == osg::NullFC) {
        parent = node->getParent();
        while (parent->getParent() != osg::NullFC)
            parent = parent->getParent();
    }
    TD_FindChildrenKeyNode::getChildren(parent, siblings);
    return siblings;
}

} // namespace

GT_Graph3DResponder::GT_Graph3DResponder(AC_Manager*, QObject* parent)
    : AC_ResponderTemplateObject<QObject>(QStringLiteral("graph3dresponder"), parent,
                                          "graph3dresponder")
{
    initActionManager(PLUG_Services::getActionManager());
}

GT_Graph3DResponder::~GT_Graph3DResponder() = default;

AC_Responder* GT_Graph3DResponder::parentResponder()
{
    return nullptr;
}

SLB_NodeWith3DSubNode* GT_Graph3DResponder::getNodeWithSubNodes(SL_Selection* selection)
{
    const MO_Node* node = SL_SelectionUtil::getFirstNode(selection);
    return node ? dynamic_cast<SLB_NodeWith3DSubNode*>(node->selInterface()) : nullptr;
}

bool GT_Graph3DResponder::appendToSelection() const
{
    const PLUG_KeyStateInterface* keys = PLUG_Services::getKeyStateInterface();
    return keys && keys->keyState().append;
}

bool GT_Graph3DResponder::hasSubnodeSelected() const
{
    return GT_CurrentSubnode::selectedWithSubnodes() != nullptr;
}

void GT_Graph3DResponder::subSelectionHasChanged() const
{
    const SC_SessionContext* session = PLUG_Services::getSessionContext();
    TUSceneChangeManager* changes = session ? session->changeManager() : nullptr;
    if (!changes)
        return;
    changes->emitSubSelectionChanged();
    changes->notify();
}

void GT_Graph3DResponder::selectSubnode(const QString& key)
{
    SLB_NodeWith3DSubNode* node = GT_CurrentSubnode::selectedWithSubnodes();
    if (!node)
        return;
    node->subSelect(node->subNodeId(AT_ModelNodeKey(key)), appendToSelection());
    subSelectionHasChanged();
}

QString GT_Graph3DResponder::getSelectedParentNodeKey() const
{
    return TD_nodeName(TD_FindParentKeyNode()(GT_CurrentSubnode::sceneGraphNode()));
}

QString GT_Graph3DResponder::getFirstSelectedChildNodeKey() const
{
    return TD_nodeName(TD_FindFirstChildKeyNode()(GT_CurrentSubnode::sceneGraphNode()));
}

QString GT_Graph3DResponder::getSelectedNextSiblingNodeKey() const
{
    const osg::NodePtr current = GT_CurrentSubnode::sceneGraphNode();
    const std::vector<osg::NodePtr> siblings = siblingsOf(current);
    if (siblings.size() < 2)
        return {};
    auto next = std::ranges::find(siblings, current);
    if (next != siblings.end())
        ++next;
    return TD_nodeName(next == siblings.end() ? siblings.front() : *next);
}

QString GT_Graph3DResponder::getSelectedPreviousSiblingNodeKey() const
{
    const osg::NodePtr current = GT_CurrentSubnode::sceneGraphNode();
    const std::vector<osg::NodePtr> siblings = siblingsOf(current);
    if (siblings.size() < 2)
        return {};
    const auto found = std::ranges::find(siblings, current);
    return TD_nodeName(found == siblings.begin() ? siblings.back() : *std::prev(found));
}

void GT_Graph3DResponder::onActionSelectParent()
{
    selectSubnode(getSelectedParentNodeKey());
}

void GT_Graph3DResponder::onActionSelectParentValidate(AC_ActionInfo* info)
{
    info->setEnabled(!getSelectedParentNodeKey().isEmpty());
}

void GT_Graph3DResponder::onActionSelectChild()
{
    selectSubnode(getFirstSelectedChildNodeKey());
}

void GT_Graph3DResponder::onActionSelectChildValidate(AC_ActionInfo* info)
{
    info->setEnabled(!getFirstSelectedChildNodeKey().isEmpty());
}

void GT_Graph3DResponder::onActionSelectNextSibling()
{
    selectSubnode(getSelectedNextSiblingNodeKey());
}

void GT_Graph3DResponder::onActionSelectNextSiblingValidate(AC_ActionInfo* info)
{
    info->setEnabled(!getSelectedNextSiblingNodeKey().isEmpty());
}

void GT_Graph3DResponder::onActionSelectPreviousSibling()
{
    selectSubnode(getSelectedPreviousSiblingNodeKey());
}

void GT_Graph3DResponder::onActionSelectPreviousSiblingValidate(AC_ActionInfo* info)
{
    info->setEnabled(!getSelectedPreviousSiblingNodeKey().isEmpty());
}
