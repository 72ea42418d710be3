// SPDX-License-Identifier: MIT
#include <OpenSG/OSGNode.h>

#ifdef REFUSED
osg::NodePtr first(const osg::Node& node)
#else
osg::NodePtr first(osg::Node& node)
#endif
{
    return node.getChild(0);
}
