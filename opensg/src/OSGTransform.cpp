// SPDX-License-Identifier: MIT
#include <OpenSG/OSGTransform.h>

namespace osg {

namespace {
FieldContainerType type("Transform", "Group");
} // namespace

FieldContainerType& Transform::getClassType()
{
    return type;
}

FieldContainerType& Transform::getType()
{
    return type;
}

const FieldContainerType& Transform::getType() const
{
    return type;
}

TransformPtr Transform::create()
{
    return canCreate() ? TransformPtr(new Transform) : TransformPtr();
}

Transform::~Transform() = default;

} // namespace osg
