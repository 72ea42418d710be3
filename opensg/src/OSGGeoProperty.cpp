// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGeoProperty.h>

namespace osg {

namespace {

/// The two types of a kind of property: what it is, and how it is stored.
template <class Kind>
struct Types
{
    static FieldContainerType property;
    static FieldContainerType data;
};

#define OSG_GEO_PROPERTY(Name, Suffix)                                                             \
    template <>                                                                                    \
    FieldContainerType Types<Name##Kind>::property(#Name, "AttachmentContainer");                  \
    template <>                                                                                    \
    FieldContainerType Types<Name##Kind>::data(#Name #Suffix, #Name);

OSG_GEO_PROPERTY(GeoPTypes, UI8)
OSG_GEO_PROPERTY(GeoPLengths, UI32)
OSG_GEO_PROPERTY(GeoPositions, 3f)
OSG_GEO_PROPERTY(GeoNormals, 3f)
OSG_GEO_PROPERTY(GeoIndices, UI32)

#undef OSG_GEO_PROPERTY

} // namespace

template <class Kind>
FieldContainerType& GeoProperty<Kind>::getClassType()
{
    return Types<Kind>::property;
}

template <class Kind>
FieldContainerType& GeoProperty<Kind>::getType()
{
    return Types<Kind>::property;
}

template <class Kind>
const FieldContainerType& GeoProperty<Kind>::getType() const
{
    return Types<Kind>::property;
}

template <class Kind>
FieldContainerType& GeoPropertyData<Kind>::getClassType()
{
    return Types<Kind>::data;
}

template <class Kind>
FieldContainerType& GeoPropertyData<Kind>::getType()
{
    return Types<Kind>::data;
}

template <class Kind>
const FieldContainerType& GeoPropertyData<Kind>::getType() const
{
    return Types<Kind>::data;
}

template class GeoProperty<GeoPTypesKind>;
template class GeoProperty<GeoPLengthsKind>;
template class GeoProperty<GeoPositionsKind>;
template class GeoProperty<GeoNormalsKind>;
template class GeoProperty<GeoIndicesKind>;
template class GeoPropertyData<GeoPTypesKind>;
template class GeoPropertyData<GeoPLengthsKind>;
template class GeoPropertyData<GeoPositionsKind>;
template class GeoPropertyData<GeoNormalsKind>;
template class GeoPropertyData<GeoIndicesKind>;

} // namespace osg
