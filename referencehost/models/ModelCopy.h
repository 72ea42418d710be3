// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CC_Transformation.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

/// A copy of the scene graph to which the deformations are applied. Shapes that stay as they are
/// are shared with the original.
osg::NodeRefPtr transformedCopy(const osg::NodePtr& root, const CC_Transformation& transformation,
                                double modelUnits);
