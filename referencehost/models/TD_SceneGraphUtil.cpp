// SPDX-License-Identifier: MIT
#include "host/models/TD_SceneGraphUtil.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <vector>

namespace {

bool hasCore(const osg::NodePtr& node, const osg::FieldContainerType& type)
{
    return node != osg::NullFC && node->getCore() != osg::NullFC &&
           node->getCore()->getType().isDerivedFrom(type);
}

} // namespace

bool TD_SceneGraphUtil::isKeySubnode(const osg::NodePtr& node)
{
    return hasCore(node, osg::KeyTransform::getClassType());
}

bool TD_SceneGraphUtil::isKeyGeometrySubnode(const osg::NodePtr& node)
{
    if (!isKeySubnode(node))
        return false;
    std::vector<osg::NodePtr> pending{node};
    while (!pending.empty()) {
        const osg::NodePtr parent = pending.back();
        pending.pop_back();
        for (osg::UInt32 i = 0; i < parent->getNChildren(); ++i) {
            const osg::NodePtr child = parent->getChild(i);
            if (hasCore(child, osg::Geometry::getClassType()))
                return true;
            if (!isKeySubnode(child))
                pending.push_back(child);
        }
    }
    return false;
}
