// SPDX-License-Identifier: MIT
#include "host/models/TD_CelVq3d.h"

TD_CelVq3d::TD_CelVq3d(const osg::NodePtr& root)
    : _root(root)
{
    osg::addRefCP(_root);
}

TD_CelVq3d::~TD_CelVq3d()
{
    osg::subRefCP(_root);
}
