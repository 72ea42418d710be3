// SPDX-License-Identifier: MIT
#include <OpenSG/OSGDrawable.h>

namespace osg {

namespace {
FieldContainerType type("Drawable", "NodeCore");
} // namespace

FieldContainerType& Drawable::getClassType()
{
    return type;
}

FieldContainerType& Drawable::getType()
{
    return type;
}

const FieldContainerType& Drawable::getType() const
{
    return type;
}

Drawable::~Drawable() = default;

} // namespace osg
