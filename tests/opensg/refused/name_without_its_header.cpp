// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGroup.h>
#ifndef REFUSED
#include <OpenSG/OSGSimpleAttachments.h>
#endif

const char* nameOf(const osg::NodePtr& node)
{
    using namespace osg;
    return getName(node);
}
