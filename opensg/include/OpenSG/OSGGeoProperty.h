// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGVector.h>

#include <cassert>
#include <vector>

namespace osg {

/// A list of values that belongs to geometries, read and written without knowing how it is stored.
/// The geometries that share it own it. Kind says what the values are.
template <class Kind>
class OSG_CORE_API GeoProperty : public AttachmentContainer
{
public:
    typedef FCPtr<AttachmentContainerPtr, GeoProperty> Ptr;
    typedef typename Kind::Value Value;

    static constexpr BitVector GeoPropDataFieldMask = BitVector(1) << 2;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

    virtual UInt32 getSize() const = 0;
    UInt32 size() const { return getSize(); }
    /// The index must be less than getSize().
    virtual Value getValue(UInt32 index) const = 0;
    virtual void setValue(const Value& value, UInt32 index) = 0;
    virtual void addValue(const Value& value) = 0;
    void push_back(const Value& value) { addValue(value); }
    virtual void resize(size_t size) = 0;
    virtual void clear() = 0;

protected:
    GeoProperty() = default;
    ~GeoProperty() override = default;
};

/// A property with its values, which are stored as Kind::Stored.
template <class Kind>
class OSG_CORE_API GeoPropertyData : public GeoProperty<Kind>
{
public:
    typedef FCPtr<typename GeoProperty<Kind>::Ptr, GeoPropertyData> Ptr;
    typedef typename Kind::Value Value;
    typedef std::vector<typename Kind::Stored> StoredFieldType;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

    /// An empty property without references. NullFC before osgInit().
    static Ptr create() { return FieldContainer::canCreate() ? Ptr(new GeoPropertyData) : Ptr(); }

    UInt32 getSize() const override { return static_cast<UInt32>(_values.size()); }
    Value getValue(UInt32 index) const override
    {
        assert(index < _values.size());
        return _values[index];
    }
    void setValue(const Value& value, UInt32 index) override
    {
        assert(index < _values.size());
        _values[index] = static_cast<typename Kind::Stored>(value);
    }
    void addValue(const Value& value) override
    {
        _values.push_back(static_cast<typename Kind::Stored>(value));
    }
    void resize(size_t size) override { _values.resize(size); }
    void clear() override { _values.clear(); }

    /// The values themselves, for those who go through all of them.
    StoredFieldType& getField() { return _values; }
    const StoredFieldType& getField() const { return _values; }

protected:
    GeoPropertyData() = default;
    ~GeoPropertyData() override = default;

private:
    StoredFieldType _values;
};

struct OSG_CORE_API GeoPTypesKind
{
    typedef UInt32 Value;
    typedef UInt8 Stored;
};
struct OSG_CORE_API GeoPLengthsKind
{
    typedef UInt32 Value;
    typedef UInt32 Stored;
};
struct OSG_CORE_API GeoPositionsKind
{
    typedef Pnt3f Value;
    typedef Pnt3f Stored;
};
struct OSG_CORE_API GeoNormalsKind
{
    typedef Vec3f Value;
    typedef Vec3f Stored;
};
struct OSG_CORE_API GeoIndicesKind
{
    typedef UInt32 Value;
    typedef UInt32 Stored;
};

typedef GeoProperty<GeoPTypesKind> GeoPTypes;
typedef GeoProperty<GeoPLengthsKind> GeoPLengths;
typedef GeoProperty<GeoPositionsKind> GeoPositions;
typedef GeoProperty<GeoNormalsKind> GeoNormals;
typedef GeoProperty<GeoIndicesKind> GeoIndices;
typedef GeoPTypes::Ptr GeoPTypesPtr;
typedef GeoPLengths::Ptr GeoPLengthsPtr;
typedef GeoPositions::Ptr GeoPositionsPtr;
typedef GeoNormals::Ptr GeoNormalsPtr;
typedef GeoIndices::Ptr GeoIndicesPtr;

typedef GeoPropertyData<GeoPTypesKind> GeoPTypesUI8;
typedef GeoPropertyData<GeoPLengthsKind> GeoPLengthsUI32;
typedef GeoPropertyData<GeoPositionsKind> GeoPositions3f;
typedef GeoPropertyData<GeoNormalsKind> GeoNormals3f;
typedef GeoPropertyData<GeoIndicesKind> GeoIndicesUI32;
typedef GeoPTypesUI8::Ptr GeoPTypesUI8Ptr;
typedef GeoPLengthsUI32::Ptr GeoPLengthsUI32Ptr;
typedef GeoPositions3f::Ptr GeoPositions3fPtr;
typedef GeoNormals3f::Ptr GeoNormals3fPtr;
typedef GeoIndicesUI32::Ptr GeoIndicesUI32Ptr;

extern template class GeoProperty<GeoPTypesKind>;
extern template class GeoPropertyData<GeoPTypesKind>;
extern template class GeoProperty<GeoPLengthsKind>;
extern template class GeoPropertyData<GeoPLengthsKind>;
extern template class GeoProperty<GeoPositionsKind>;
extern template class GeoPropertyData<GeoPositionsKind>;
extern template class GeoProperty<GeoNormalsKind>;
extern template class GeoPropertyData<GeoNormalsKind>;
extern template class GeoProperty<GeoIndicesKind>;
extern template class GeoPropertyData<GeoIndicesKind>;

} // namespace osg
