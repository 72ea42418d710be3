// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGMaterialDrawable.h>

namespace osg {

class Geometry;
typedef FCPtr<MaterialDrawablePtr, Geometry> GeometryPtr;
typedef RefPtr<GeometryPtr> GeometryRefPtr;

/// A core that is a list of primitives. Types says what each primitive is, by the number that
/// OpenGL gives it; Lengths how many vertices it takes; Indices which ones, or all in order if
/// there are none. Its nodes own it. Each property may be shared between geometries, each of which
/// owns a reference of it; a property that is not set is NullFC.
class OSG_CORE_API Geometry : public MaterialDrawable
{
public:
    typedef GeometryPtr Ptr;

    static constexpr BitVector TypesFieldMask = BitVector(1) << 2;
    static constexpr BitVector LengthsFieldMask = BitVector(1) << 3;
    static constexpr BitVector PositionsFieldMask = BitVector(1) << 4;
    static constexpr BitVector NormalsFieldMask = BitVector(1) << 5;
    static constexpr BitVector IndicesFieldMask = BitVector(1) << 6;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

    /// A geometry without references and properties. NullFC before osgInit().
    static GeometryPtr create();

    GeoPTypesPtr getTypes() const { return _types; }
    GeoPLengthsPtr getLengths() const { return _lengths; }
    GeoPositionsPtr getPositions() const { return _positions; }
    GeoNormalsPtr getNormals() const { return _normals; }
    GeoIndicesPtr getIndices() const { return _indices; }

    /// Takes a reference of the new property and gives back that of the old one. NullFC unsets it.
    void setTypes(const GeoPTypesPtr& types) { _types = types; }
    void setLengths(const GeoPLengthsPtr& lengths) { _lengths = lengths; }
    void setPositions(const GeoPositionsPtr& positions) { _positions = positions; }
    void setNormals(const GeoNormalsPtr& normals) { _normals = normals; }
    void setIndices(const GeoIndicesPtr& indices) { _indices = indices; }

protected:
    Geometry() = default;
    ~Geometry() override;

private:
    RefPtr<GeoPTypesPtr> _types;
    RefPtr<GeoPLengthsPtr> _lengths;
    RefPtr<GeoPositionsPtr> _positions;
    RefPtr<GeoNormalsPtr> _normals;
    RefPtr<GeoIndicesPtr> _indices;
};

} // namespace osg
