// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <OpenSG/OSGNode.h>

/// What scene-graph nodes are to the host.
class HOST_EXPORT TD_SceneGraphUtil
{
public:
    /// Whether the node is a subnode: its core is a KeyTransform. False for a null node.
    static bool isKeySubnode(const osg::NodePtr& node);
    /// Whether the node is a subnode with a shape of its own, that is one that lies below it but
    /// below no other subnode in between.
    static bool isKeyGeometrySubnode(const osg::NodePtr& node);
};
