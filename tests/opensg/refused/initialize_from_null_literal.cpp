// SPDX-License-Identifier: MIT
#include <OpenSG/OSGNode.h>

bool nothing()
{
#ifdef REFUSED
    osg::NodePtr node = NULL;
#else
    osg::NodePtr node = osg::NullFC;
#endif
    return node == nullptr;
}
