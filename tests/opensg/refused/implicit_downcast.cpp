// SPDX-License-Identifier: MIT
#include <OpenSG/OSGTransform.h>

osg::TransformPtr transformOf(const osg::NodePtr& node)
{
#ifdef REFUSED
    return node->getCore();
#else
    return osg::TransformPtr::dcast(node->getCore());
#endif
}
