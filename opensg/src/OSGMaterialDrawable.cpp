// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMaterialDrawable.h>

namespace osg {

namespace {
FieldContainerType type("MaterialDrawable", "Drawable");
} // namespace

FieldContainerType& MaterialDrawable::getClassType()
{
    return type;
}

FieldContainerType& MaterialDrawable::getType()
{
    return type;
}

const FieldContainerType& MaterialDrawable::getType() const
{
    return type;
}

MaterialDrawable::~MaterialDrawable() = default;

} // namespace osg
