// SPDX-License-Identifier: MIT
#include "workbench/modelstream/ModelStreamWriter.h"

#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QIODevice>
#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

using namespace ModelStream;

namespace {

template <class... Numbers>
QByteArray packed(Numbers... numbers)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    prepare(stream);
    (stream << ... << numbers);
    return content;
}

char* put(char* at, osg::UInt32 number)
{
    qToLittleEndian<quint32>(number, at);
    return at + sizeof number;
}

template <class Tuple>
char* putTuple(char* at, const Tuple& tuple)
{
    for (osg::UInt32 i = 0; i < 3; ++i) {
        qToLittleEndian<float>(tuple[i], at);
        at += sizeof(float);
    }
    return at;
}

char* put(char* at, const osg::Pnt3f& point)
{
    return putTuple(at, point);
}

char* put(char* at, const osg::Vec3f& vector)
{
    return putTuple(at, vector);
}

/// Hands the values of a property to the given function, in frames that have whole values only.
template <class Property, class Put, class Send>
bool sendAll(const Property& property, qsizetype valueSize, const Put& putValue, const Send& send)
{
    const osg::UInt32 count = property->getSize();
    const auto stride = static_cast<osg::UInt32>(frameAim / valueSize);
    for (osg::UInt32 done = 0; done < count;) {
        const osg::UInt32 end = done + std::min(stride, count - done);
        QByteArray content((end - done) * valueSize, Qt::Uninitialized);
        char* at = content.data();
        for (; done < end; ++done)
            at = putValue(at, property->getValue(done));
        if (!send(content))
            return false;
    }
    return true;
}

void writeMatrix(QDataStream& stream, const osg::Matrix& matrix)
{
    char bytes[16 * sizeof(float)];
    for (osg::UInt32 i = 0; i < 16; ++i)
        qToLittleEndian<float>(matrix[i / 4][i % 4], bytes + i * sizeof(float));
    stream.writeRawData(bytes, sizeof bytes);
}

std::optional<Kind> kindOf(const osg::NodeCorePtr& core)
{
    if (core == osg::NullFC)
        return std::nullopt;
    const osg::FieldContainerType& type = core->getType();
    if (type.isDerivedFrom(osg::KeyTransform::getClassType()))
        return Kind::KeyTransform;
    if (type.isDerivedFrom(osg::Transform::getClassType()))
        return Kind::Transform;
    if (type.isDerivedFrom(osg::Group::getClassType()))
        return Kind::Group;
    if (type.isDerivedFrom(osg::Geometry::getClassType()))
        return Kind::Geometry;
    return std::nullopt;
}

} // namespace

ModelStreamWriter::ModelStreamWriter(QIODevice& device)
    : _device(device)
{
    const QByteArray head = QByteArray(magic, sizeof magic) + packed(version);
    _works = _device.write(head) == head.size();
    startNodes();
}

bool ModelStreamWriter::writeProgress(double fraction)
{
    return send(Frame::Progress, packed(static_cast<float>(fraction)));
}

bool ModelStreamWriter::writeResult(const ImportResult& result)
{
    if (!result.succeeded())
        return writeFailure(result);
    return writeNodes(result.root) && flushNodes() &&
           send(Frame::End, packed(_nodeCount, static_cast<quint32>(_meshes.size()),
                                   static_cast<quint32>(result.statistics.renamed)));
}

bool ModelStreamWriter::writeFailure(const ImportResult& result)
{
    const auto flag = static_cast<quint8>(result.cancelled ? 1 : 0);
    return send(Frame::Failure, packed(flag) + result.error.toUtf8());
}

bool ModelStreamWriter::writeNodes(const osg::NodePtr& root)
{
    std::vector<std::pair<osg::NodePtr, quint32>> pending{{root, 0}};
    while (!pending.empty()) {
        const auto [node, level] = pending.back();
        pending.pop_back();
        if (node == osg::NullFC || !writeNode(node, level))
            return false;
        for (osg::UInt32 i = node->getNChildren(); i-- > 0;)
            pending.emplace_back(node->getChild(i), level + 1);
    }
    return true;
}

bool ModelStreamWriter::writeNode(const osg::NodePtr& node, quint32 level)
{
    const std::optional<Kind> kind = kindOf(node->getCore());
    const char* const name = osg::getName(node);
    const std::size_t nameSize = name ? std::strlen(name) : 0;
    if (!kind || nameSize > nameLimit)
        return false;

    const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
    if (geometry != osg::NullFC && !_meshes.contains(geometry.getCPtr())) {
        if (!flushNodes() || !writeMesh(geometry))
            return false;
        _meshes.insert(geometry.getCPtr(), static_cast<quint32>(_meshes.size()));
    }

    *_nodeStream << static_cast<quint8>(static_cast<quint8>(*kind) | (name ? namedBit : 0))
                 << level;
    if (name) {
        *_nodeStream << static_cast<quint32>(nameSize);
        _nodeStream->writeRawData(name, static_cast<int>(nameSize));
    }
    if (geometry != osg::NullFC)
        *_nodeStream << _meshes.value(geometry.getCPtr());
    if (const osg::TransformPtr transform = osg::TransformPtr::dcast(node->getCore()))
        writeMatrix(*_nodeStream, transform->getMatrix());
    ++_nodeCount;
    return _nodes.size() < frameAim || flushNodes();
}

bool ModelStreamWriter::writeMesh(const osg::GeometryPtr& geometry)
{
    const osg::GeoPTypesPtr types = geometry->getTypes();
    const osg::GeoPLengthsPtr lengths = geometry->getLengths();
    const osg::GeoIndicesPtr indices = geometry->getIndices();
    const osg::GeoPositionsPtr positions = geometry->getPositions();
    const osg::GeoNormalsPtr normals = geometry->getNormals();
    if (types == osg::NullFC || lengths == osg::NullFC || indices == osg::NullFC ||
        positions == osg::NullFC || normals == osg::NullFC)
        return false;

    const auto putByte = [](char* at, osg::UInt32 type) {
        *at = static_cast<char>(type);
        return at + 1;
    };
    const auto putValue = [](char* at, const auto& value) { return put(at, value); };
    const auto sendAs = [this](Frame kind) {
        return [this, kind](const QByteArray& content) { return send(kind, content); };
    };
    constexpr qsizetype tupleSize = 3 * sizeof(float);
    return send(Frame::Mesh, packed(quint32(types->getSize()), quint32(indices->getSize()),
                                    quint32(positions->getSize()))) &&
           sendAll(types, 1, putByte, sendAs(Frame::Types)) &&
           sendAll(lengths, sizeof(quint32), putValue, sendAs(Frame::Lengths)) &&
           sendAll(indices, sizeof(quint32), putValue, sendAs(Frame::Indices)) &&
           sendAll(positions, tupleSize, putValue, sendAs(Frame::Positions)) &&
           sendAll(normals, tupleSize, putValue, sendAs(Frame::Normals));
}

void ModelStreamWriter::startNodes()
{
    _nodes.clear();
    _nodes.reserve(2 * frameAim);
    _nodeStream.emplace(&_nodes, QIODevice::WriteOnly);
    prepare(*_nodeStream);
}

bool ModelStreamWriter::flushNodes()
{
    if (_nodes.isEmpty())
        return true;
    const bool sent = send(Frame::Nodes, _nodes);
    startNodes();
    return sent;
}

bool ModelStreamWriter::send(Frame kind, const QByteArray& content)
{
    const QByteArray head = packed(static_cast<quint8>(kind), static_cast<quint32>(content.size()));
    _works = _works && _device.write(head + content) == head.size() + content.size();
    return _works;
}
