// SPDX-License-Identifier: MIT
#include <OpenSG/OSGNode.h>
#ifndef REFUSED
#include <OpenSG/OSGNodeCore.h>
#endif

const char* typeOf(const osg::NodePtr& node)
{
    return node->getCore()->getType().getCName();
}
