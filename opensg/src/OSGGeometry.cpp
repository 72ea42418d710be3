// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGeometry.h>

namespace osg {

namespace {
FieldContainerType type("Geometry", "MaterialDrawable");
} // namespace

FieldContainerType& Geometry::getClassType()
{
    return type;
}

FieldContainerType& Geometry::getType()
{
    return type;
}

const FieldContainerType& Geometry::getType() const
{
    return type;
}

GeometryPtr Geometry::create()
{
    return canCreate() ? GeometryPtr(new Geometry) : GeometryPtr();
}

Geometry::~Geometry() = default;

} // namespace osg
