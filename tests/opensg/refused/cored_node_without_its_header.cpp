// SPDX-License-Identifier: MIT
#include <OpenSG/OSGNode.h>
#ifndef REFUSED
#include <OpenSG/OSGNodeCore.h>
#endif

struct Core
{
    typedef osg::NodeCorePtr Ptr;
    static Ptr create();
};

osg::NodePtr make()
{
    using namespace osg;
    return makeCoredNode<Core>();
}
