// SPDX-License-Identifier: MIT
#pragma once

#include "host/selection/SLB_NodeInterface.h"

#include <cstdint>

class AT_ModelNodeKey;

/// A selected 3D model element: its sub-selection ids stand for subnodes.
class HOST_EXPORT SLB_NodeWith3DSubNode : public SLB_NodeInterface
{
public:
    /// The id of the subnode; -1 when the element has no such subnode.
    virtual int subNodeId(const AT_ModelNodeKey& key) const = 0;
    /// False, with the key untouched, when the id is unknown.
    virtual bool subNodeKey(int id, AT_ModelNodeKey& key) const = 0;

    /// @name Settings of a subnode at a frame
    /// 0 when it is as it is modelled, shown or without transformation, and 1 when it is not: when
    /// it is off, when its own shape is hidden, when it has a transformation of its own. False,
    /// with the state untouched, when the id is unknown.
    /// @{
    virtual bool subNodeVisibility(double frame, int id, std::uint32_t& state) const = 0;
    virtual bool subNodeLocalVisibility(double frame, int id, std::uint32_t& state) const = 0;
    virtual bool subNodeTransformation(double frame, int id, std::uint32_t& state) const = 0;
    /// @}
};
