// SPDX-License-Identifier: MIT
#include <OpenSG/OSGNodeCore.h>

namespace osg {

namespace {
FieldContainerType type("NodeCore", "AttachmentContainer");
} // namespace

FieldContainerType& NodeCore::getClassType()
{
    return type;
}

FieldContainerType& NodeCore::getType()
{
    return type;
}

const FieldContainerType& NodeCore::getType() const
{
    return type;
}

NodeCore::~NodeCore() = default;

NodePtr makeNodeFor(const NodeCorePtr& core)
{
    const NodePtr node = Node::create();
    if (node)
        node->setCore(core);
    return node;
}

} // namespace osg
