// SPDX-License-Identifier: MIT
#include "host/models/TD_CelVq3d.h"

#include "referencehost/models/KeyNodeIndex.h"

TD_CelVq3d::TD_CelVq3d(const osg::NodePtr& root)
    : _root(root)
{
    osg::addRefCP(_root);
    KeyNodeIndex::enter(_root);
}

TD_CelVq3d::~TD_CelVq3d()
{
    KeyNodeIndex::leave(_root);
    osg::subRefCP(_root);
}
