// SPDX-License-Identifier: MIT
#include <OpenSG/OSGNode.h>

void forget(osg::NodePtr& node)
{
#ifdef REFUSED
    node = nullptr;
#else
    node = osg::NullFC;
#endif
}
