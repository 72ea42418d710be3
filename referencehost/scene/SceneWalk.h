// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

class MO_GroupModule;
class MO_Node;
class TUSceneChangeManager;

/// All nodes in the group and in the groups inside it, each before what it holds, in order.
std::vector<MO_Node*> nodesBelow(const MO_GroupModule& group);

/// The node itself and, if it is a group, all nodes below it.
std::vector<MO_Node*> subtreeOf(MO_Node& node);

/// Where changes of the node are noted; null while it is detached or its scene is silent.
TUSceneChangeManager* changeManagerOf(const MO_Node& node);
