// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"
#include "host/models/AT_ModelNodeKey.h"

#include <OpenSG/OSGNode.h>
#include <vector>

/// Finds the subnode with a key at a root or below it, the first one in pre-order. Null when there
/// is none. In a model that is shown, the answer comes without a walk.
class HOST_EXPORT TD_FindKeyNode
{
public:
    osg::NodePtr operator()(const osg::NodePtr& root, const AT_ModelNodeKey& key) const;
};

/// Finds the nearest node above a node that is a subnode. Null when there is none.
class HOST_EXPORT TD_FindParentKeyNode
{
public:
    osg::NodePtr operator()(const osg::NodePtr& node) const;
};

/// Finds the first subnode below a node, in pre-order. Null when there is none.
class HOST_EXPORT TD_FindFirstChildKeyNode
{
public:
    osg::NodePtr operator()(const osg::NodePtr& node) const;
};

/// Finds the subnodes below a node and below no other subnode.
class HOST_EXPORT TD_FindChildrenKeyNode
{
public:
    /// Appends them to the list, in scene-graph order. A null node has none.
    static void getChildren(const osg::NodePtr& parent, std::vector<osg::NodePtr>& list);
};
