// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <OpenSG/OSGNode.h>

/// A drawing that is a 3D model: an OpenSG scene graph below one root node.
class HOST_EXPORT TD_CelVq3d
{
public:
    /// Holds a reference to the root for as long as it lives; a null root makes an empty model.
    explicit TD_CelVq3d(const osg::NodePtr& root);
    ~TD_CelVq3d();
    TD_CelVq3d(const TD_CelVq3d&) = delete;
    TD_CelVq3d& operator=(const TD_CelVq3d&) = delete;

    osg::NodePtr rootNodePtr() const { return _root; }

private:
    osg::NodePtr _root;
};
