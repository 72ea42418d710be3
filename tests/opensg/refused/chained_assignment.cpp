// SPDX-License-Identifier: MIT
#include <OpenSG/OSGNode.h>

void copy(osg::NodePtr& a, osg::NodePtr& b, const osg::NodePtr& c)
{
#ifdef REFUSED
    a = b = c;
#else
    b = c;
    a = b;
#endif
}
