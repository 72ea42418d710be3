// SPDX-License-Identifier: MIT
#include "workbench/modelstream/SceneAssembler.h"

#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QDataStream>
#include <QtEndian>
#include <cmath>
#include <limits>
#include <optional>
#include <string>

using namespace ModelStream;

namespace {

/// About what a node takes with its core and its place in all lists.
constexpr qint64 nodeCost = 512;

std::optional<osg::Matrix> readMatrix(QDataStream& stream)
{
    // At once, since the stream takes longer for a number than anything that is made of it.
    char bytes[16 * sizeof(float)];
    if (stream.readRawData(bytes, sizeof bytes) != sizeof bytes)
        return std::nullopt;
    osg::Matrix matrix;
    for (osg::UInt32 i = 0; i < 16; ++i) {
        const auto number = qFromLittleEndian<float>(bytes + i * sizeof(float));
        if (!std::isfinite(number))
            return std::nullopt;
        matrix[i / 4][i % 4] = number;
    }
    return matrix;
}

} // namespace

SceneAssembler::SceneAssembler(qint64 memoryLimit)
    : _memoryLeft(memoryLimit)
{
}

bool SceneAssembler::startMesh(quint32 primitives, quint32 indices, quint32 vertices)
{
    // A mesh is sent for the node that comes next.
    if (!finishMesh() || _meshesShown != _meshes.size() ||
        !take(MeshAssembler::cost(primitives, indices, vertices)))
        return false;
    _mesh = std::make_unique<MeshAssembler>(primitives, indices, vertices);
    return true;
}

bool SceneAssembler::addToMesh(Frame kind, const char* content, qsizetype size)
{
    return _mesh && _mesh->add(kind, content, size);
}

bool SceneAssembler::finishMesh()
{
    if (!_mesh)
        return true;
    if (!_mesh->isComplete() || !_mesh->isSound())
        return false;
    ++_statistics.meshes;
    _statistics.vertices += _mesh->vertices();
    _statistics.faces += _mesh->faces();
    _meshes.emplace_back(_mesh->geometry());
    _mesh.reset();
    return true;
}

bool SceneAssembler::addNodes(QDataStream& stream)
{
    if (!finishMesh())
        return false;
    while (!stream.atEnd()) {
        if (!addNode(stream))
            return false;
    }
    return true;
}

bool SceneAssembler::addNode(QDataStream& stream)
{
    quint8 kindAndFlag = 0;
    quint32 level = 0;
    stream >> kindAndFlag >> level;
    if (stream.status() != QDataStream::Ok || !take(nodeCost) ||
        _statistics.nodes() == std::numeric_limits<int>::max())
        return false;
    const bool isNamed = kindAndFlag & namedBit;
    const auto kind = Kind(kindAndFlag & ~namedBit);
    // Parts of the model are known by their names.
    if (kind == Kind::KeyTransform && !isNamed)
        return false;

    const osg::NodeRefPtr node(osg::Node::create());
    if (isNamed && !readName(stream, node))
        return false;
    const osg::NodeCorePtr core = readCore(stream, kind);
    if (core == osg::NullFC)
        return false;
    node->setCore(core);
    if (!attach(node, level))
        return false;
    _path.emplace_back(node, kind != Kind::Geometry);
    return true;
}

bool SceneAssembler::attach(const osg::NodePtr& node, quint32 level)
{
    if (_path.empty()) {
        _root = node;
        return level == 0;
    }
    if (level == 0 || level > _path.size())
        return false;
    _path.resize(level);
    if (!_path.back().second)
        return false;
    _path.back().first->addChild(node);
    return true;
}

bool SceneAssembler::readName(QDataStream& stream, const osg::NodePtr& node)
{
    quint32 size = 0;
    stream >> size;
    if (stream.status() != QDataStream::Ok || size == 0 || size > nameLimit || !take(size))
        return false;
    std::string name(size, '\0');
    if (stream.readRawData(name.data(), static_cast<int>(size)) != static_cast<int>(size) ||
        name.find('\0') != std::string::npos)
        return false;
    osg::setName(node, name);
    return _names.insert(osg::getName(node)).second;
}

osg::NodeCorePtr SceneAssembler::readCore(QDataStream& stream, Kind kind)
{
    if (kind == Kind::Group) {
        ++_statistics.groups;
        return osg::Group::create();
    }
    if (kind == Kind::Geometry)
        return readGeometry(stream);
    if (kind != Kind::KeyTransform && kind != Kind::Transform)
        return osg::NullFC;

    const std::optional<osg::Matrix> matrix = readMatrix(stream);
    if (!matrix)
        return osg::NullFC;
    osg::TransformPtr core;
    if (kind == Kind::KeyTransform) {
        ++_statistics.keyTransforms;
        core = osg::KeyTransform::create();
    } else {
        ++_statistics.transforms;
        core = osg::Transform::create();
    }
    osg::beginEditCP(core, osg::Transform::MatrixFieldMask);
    core->setMatrix(*matrix);
    osg::endEditCP(core, osg::Transform::MatrixFieldMask);
    return core;
}

osg::NodeCorePtr SceneAssembler::readGeometry(QDataStream& stream)
{
    quint32 mesh = 0;
    stream >> mesh;
    if (stream.status() != QDataStream::Ok || mesh >= _meshes.size())
        return osg::NullFC;
    if (mesh == _meshesShown)
        ++_meshesShown;
    ++_statistics.geometries;
    return osg::GeometryPtr(_meshes[mesh]);
}

bool SceneAssembler::finish(quint32 nodes, quint32 meshes, quint32 renamed)
{
    if (!finishMesh() || _root == osg::NullFC || _meshesShown != _meshes.size())
        return false;
    const auto count = static_cast<quint32>(_statistics.nodes());
    if (nodes != count || meshes != _meshes.size() || renamed > count)
        return false;
    _statistics.renamed = static_cast<int>(renamed);
    return true;
}

bool SceneAssembler::take(qint64 bytes)
{
    _memoryLeft -= bytes;
    return _memoryLeft >= 0;
}
