// SPDX-License-Identifier: MIT
#include "workbench/modelstream/MeshAssembler.h"

#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <optional>

using namespace ModelStream;

namespace {

constexpr qsizetype tupleSize = 3 * sizeof(float);

bool read(const char* at, osg::UInt8& value)
{
    value = static_cast<osg::UInt8>(*at);
    return true;
}

bool read(const char* at, osg::UInt32& value)
{
    value = qFromLittleEndian<quint32>(at);
    return true;
}

template <class Tuple>
bool readTuple(const char* at, Tuple& tuple)
{
    bool isFinite = true;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        tuple[i] = qFromLittleEndian<float>(at + i * sizeof(float));
        isFinite = isFinite && std::isfinite(tuple[i]);
    }
    return isFinite;
}

bool read(const char* at, osg::Pnt3f& point)
{
    return readTuple(at, point);
}

bool read(const char* at, osg::Vec3f& vector)
{
    return readTuple(at, vector);
}

/// Appends the values that the bytes hold, up to the total.
template <class List>
bool append(List& list, quint32 total, const char* content, qsizetype size, qsizetype valueSize)
{
    auto& values = list->getField();
    const auto before = static_cast<quint32>(values.size());
    const qsizetype count = size / valueSize;
    if (size % valueSize != 0 || count > qsizetype(total) - before)
        return false;
    const auto after = static_cast<quint32>(before + count);
    // Grown in steps, so that announced sizes cost nothing, and to no more than is needed.
    if (after > values.capacity())
        values.reserve(std::min<std::size_t>(total, std::max<std::size_t>(after, 2UL * before)));
    values.resize(after);
    for (quint32 i = before; i < after; ++i, content += valueSize) {
        if (!read(content, values[i]))
            return false;
    }
    return true;
}

/// How many faces the corners make; nothing if there cannot be so many of them in a primitive.
std::optional<quint32> facesOf(Primitive primitive, quint32 corners)
{
    const auto each = [corners](quint32 size) -> std::optional<quint32> {
        if (corners % size != 0)
            return std::nullopt;
        return corners / size;
    };
    switch (primitive) {
    case Primitive::Points:
        return corners;
    case Primitive::Lines:
        return each(2);
    case Primitive::Triangles:
        return each(3);
    case Primitive::Polygon:
        break;
    }
    return corners > 3 ? std::optional<quint32>(1) : std::nullopt;
}

} // namespace

MeshAssembler::MeshAssembler(quint32 primitives, quint32 indices, quint32 vertices)
    : _primitives(primitives)
    , _indices(indices)
    , _vertices(vertices)
    , _geometry(osg::Geometry::create())
    , _typeList(osg::GeoPTypesUI8::create())
    , _lengthList(osg::GeoPLengthsUI32::create())
    , _indexList(osg::GeoIndicesUI32::create())
    , _positionList(osg::GeoPositions3f::create())
    , _normalList(osg::GeoNormals3f::create())
{
    const osg::GeometryPtr core = _geometry;
    osg::beginEditCP(core);
    core->setTypes(_typeList);
    core->setLengths(_lengthList);
    core->setIndices(_indexList);
    core->setPositions(_positionList);
    core->setNormals(_normalList);
    osg::endEditCP(core);
}

qint64 MeshAssembler::cost(quint32 primitives, quint32 indices, quint32 vertices)
{
    constexpr qint64 ownCost = 1024;
    return ownCost + qint64(primitives) * (sizeof(osg::UInt8) + sizeof(osg::UInt32)) +
           qint64(indices) * sizeof(osg::UInt32) + qint64(vertices) * 2 * tupleSize;
}

bool MeshAssembler::add(Frame kind, const char* content, qsizetype size)
{
    switch (kind) {
    case Frame::Types:
        return hasLegalTypes(content, size) && append(_typeList, _primitives, content, size, 1);
    case Frame::Lengths:
        return append(_lengthList, _primitives, content, size, sizeof(quint32));
    case Frame::Indices:
        return append(_indexList, _indices, content, size, sizeof(quint32));
    case Frame::Positions:
        return append(_positionList, _vertices, content, size, tupleSize);
    case Frame::Normals:
        return append(_normalList, _vertices, content, size, tupleSize);
    default:
        return false;
    }
}

bool MeshAssembler::isComplete() const
{
    return _typeList->getSize() == _primitives && _lengthList->getSize() == _primitives &&
           _indexList->getSize() == _indices && _positionList->getSize() == _vertices &&
           _normalList->getSize() == _vertices;
}

bool MeshAssembler::isSound()
{
    const auto& indices = _indexList->getField();
    if (std::any_of(indices.begin(), indices.end(),
                    [this](osg::UInt32 index) { return index >= _vertices; }))
        return false;
    const auto& types = _typeList->getField();
    const auto& lengths = _lengthList->getField();
    quint64 corners = 0;
    _faces = 0;
    for (std::size_t i = 0; i < types.size(); ++i) {
        const std::optional<quint32> faces = facesOf(Primitive(types[i]), lengths[i]);
        if (!faces || *faces == 0)
            return false;
        corners += lengths[i];
        _faces += *faces;
    }
    return corners == _indices;
}

bool MeshAssembler::hasLegalTypes(const char* content, qsizetype size) const
{
    return std::all_of(content, content + size, [](char type) {
        const auto primitive = Primitive(static_cast<quint8>(type));
        return primitive == Primitive::Points || primitive == Primitive::Lines ||
               primitive == Primitive::Triangles || primitive == Primitive::Polygon;
    });
}
