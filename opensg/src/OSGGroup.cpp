// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGroup.h>

namespace osg {

namespace {
FieldContainerType type("Group", "NodeCore");
} // namespace

FieldContainerType& Group::getClassType()
{
    return type;
}

FieldContainerType& Group::getType()
{
    return type;
}

const FieldContainerType& Group::getType() const
{
    return type;
}

GroupPtr Group::create()
{
    return canCreate() ? GroupPtr(new Group) : GroupPtr();
}

Group::~Group() = default;

} // namespace osg
