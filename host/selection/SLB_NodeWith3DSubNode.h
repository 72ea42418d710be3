// SPDX-License-Identifier: MIT
#pragma once

#include "host/selection/SLB_NodeInterface.h"

class AT_ModelNodeKey;

/// A selected 3D model element: its sub-selection ids stand for subnodes.
class HOST_EXPORT SLB_NodeWith3DSubNode : public SLB_NodeInterface
{
public:
    /// The id of the subnode; -1 when the element has no such subnode.
    virtual int subNodeId(const AT_ModelNodeKey& key) const = 0;
    /// False, with the key untouched, when the id is unknown.
    virtual bool subNodeKey(int id, AT_ModelNodeKey& key) const = 0;
};
