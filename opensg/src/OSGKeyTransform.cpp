// SPDX-License-Identifier: MIT
#include <OpenSG/OSGKeyTransform.h>

namespace osg {

namespace {
FieldContainerType type("KeyTransform", "Transform");
} // namespace

FieldContainerType& KeyTransform::getClassType()
{
    return type;
}

FieldContainerType& KeyTransform::getType()
{
    return type;
}

const FieldContainerType& KeyTransform::getType() const
{
    return type;
}

KeyTransformPtr KeyTransform::create()
{
    return canCreate() ? KeyTransformPtr(new KeyTransform) : KeyTransformPtr();
}

KeyTransform::~KeyTransform() = default;

} // namespace osg
