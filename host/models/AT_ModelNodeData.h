// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>

/// The settings of one subnode at a frame. A value; by default the subnode is shown as modelled.
struct AT_ModelNodeData
{
    /// Whether the subnode, and with it everything below it, is on.
    bool visible = true;
    /// Whether the subnode's own shape is drawn; not inherited.
    bool localVisible = true;
    /// Moves the subnode within its own coordinates, before its own transformation places it.
    osg::Matrix transformation;
    /// Whether the subnode's transformation was made available, to be changed and animated.
    bool hasTransformation = false;

    friend bool operator==(const AT_ModelNodeData& a, const AT_ModelNodeData& b)
    {
        return a.visible == b.visible && a.localVisible == b.localVisible &&
               a.hasTransformation == b.hasTransformation && a.transformation == b.transformation;
    }
};
