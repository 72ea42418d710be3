// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

class SC_SessionContext;
class SLB_ManipContext;
class SLB_NodeInterface;
class SLB_NodeWith3DSubNode;

/// What the actions on subnodes work on. All of it is read from the host anew.
namespace GT_CurrentSubnode {

/// The selection interface of the node that was selected first; null when nothing is selected.
SLB_NodeInterface* selected();
/// The same, if that node has subnodes and some of them are sub-selected; null otherwise.
SLB_NodeWith3DSubNode* selectedWithSubnodes();
/// The scene-graph node of the subnode that was sub-selected first, in the model that is shown now;
/// null when there is none.
osg::NodePtr sceneGraphNode();
/// How the node's manipulators are to change it: its settings at the current frame.
SLB_ManipContext manipContext(SC_SessionContext* session, const SLB_NodeInterface& node);

} // namespace GT_CurrentSubnode
