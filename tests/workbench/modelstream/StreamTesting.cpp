// SPDX-License-Identifier: MIT
#include "StreamTesting.h"

#include "SceneOutline.h"
#include "workbench/modelstream/ModelStreamWriter.h"

#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QBuffer>
#include <QHash>
#include <algorithm>
#include <random>
#include <unordered_set>
#include <vector>

namespace {

class SceneMaker
{
public:
    explicit SceneMaker(quint32 seed)
        : _random(seed)
    {
    }

    ImportResult make(int nodes)
    {
        _result.root = osg::NodeRefPtr(inner());
        std::vector<osg::NodePtr> parents{_result.root};
        while (_result.statistics.nodes() < nodes) {
            // Children of the last node make it deep, those of any other wide.
            const bool goesDeeper = below(2) == 0;
            const osg::NodePtr parent =
                goesDeeper ? parents.back() : parents[below(parents.size())];
            const bool isLeaf = below(3) == 0;
            const osg::NodePtr child = isLeaf ? leaf() : inner();
            parent->addChild(child);
            if (!isLeaf)
                parents.push_back(child);
        }
        _result.statistics.renamed = static_cast<int>(below(nodes));
        return _result;
    }

private:
    std::size_t below(std::size_t end) { return _random() % end; }
    float number() { return std::uniform_real_distribution<float>(-1.0e6F, 1.0e6F)(_random); }

    void name(const osg::NodePtr& node)
    {
        std::string text = std::to_string(_result.statistics.nodes()) + ":";
        for (std::size_t i = below(30); i > 0; --i)
            text += static_cast<char>(1 + below(255));
        osg::setName(node, text);
    }

    osg::NodePtr inner()
    {
        const std::size_t kind = below(3);
        if (kind == 0) {
            const osg::NodePtr group = osg::makeNodeFor(osg::Group::create());
            ++_result.statistics.groups;
            if (below(4) > 0)
                name(group);
            return group;
        }
        const osg::TransformPtr core =
            kind == 1 ? osg::TransformPtr(osg::KeyTransform::create()) : osg::Transform::create();
        ++(kind == 1 ? _result.statistics.keyTransforms : _result.statistics.transforms);
        osg::Matrix matrix;
        for (osg::UInt32 i = 0; i < 16; ++i)
            matrix[i / 4][i % 4] = number();
        core->setMatrix(matrix);
        const osg::NodePtr node = osg::makeNodeFor(core);
        if (kind == 1 || below(2) == 0)
            name(node);
        return node;
    }

    osg::NodePtr leaf()
    {
        if (_meshes.empty() || below(3) == 0)
            _meshes.push_back(mesh());
        const osg::NodePtr node =
            osg::makeNodeFor(osg::GeometryPtr(_meshes[below(_meshes.size())]));
        ++_result.statistics.geometries;
        if (below(2) == 0)
            name(node);
        const osg::GeometryPtr shown = osg::GeometryPtr::dcast(node->getCore());
        if (_counted.insert(shown.getCPtr()).second)
            count(shown);
        return node;
    }

    void count(const osg::GeometryPtr& geometry)
    {
        ++_result.statistics.meshes;
        _result.statistics.vertices += geometry->getPositions()->getSize();
        for (osg::UInt32 i = 0; i < geometry->getTypes()->getSize(); ++i) {
            const osg::UInt32 type = geometry->getTypes()->getValue(i);
            const osg::UInt32 length = geometry->getLengths()->getValue(i);
            const osg::UInt32 corners = type == 0 ? 1 : type == 1 ? 2 : type == 4 ? 3 : length;
            _result.statistics.faces += length / corners;
        }
    }

    osg::GeometryRefPtr mesh()
    {
        const osg::GeometryRefPtr geometry(osg::Geometry::create());
        const osg::GeoPTypesPtr types = osg::GeoPTypesUI8::create();
        const osg::GeoPLengthsPtr lengths = osg::GeoPLengthsUI32::create();
        const osg::GeoIndicesPtr indices = osg::GeoIndicesUI32::create();
        const osg::GeoPositionsPtr positions = osg::GeoPositions3f::create();
        const osg::GeoNormalsPtr normals = osg::GeoNormals3f::create();
        geometry->setTypes(types);
        geometry->setLengths(lengths);
        geometry->setIndices(indices);
        geometry->setPositions(positions);
        geometry->setNormals(normals);
        const std::size_t vertices = below(50);
        for (std::size_t i = 0; i < vertices; ++i) {
            positions->push_back(osg::Pnt3f(number(), -0.0F, number()));
            normals->push_back(osg::Vec3f(number(), number(), number()));
        }
        for (std::size_t i = below(8); vertices > 0 && i > 0; --i) {
            constexpr osg::UInt32 kinds[][2] = {{0, 1}, {1, 2}, {4, 3}, {9, 4}};
            const auto& [type, corners] = kinds[below(4)];
            const auto length = static_cast<osg::UInt32>(corners * (1 + below(5)));
            types->push_back(type);
            lengths->push_back(length);
            for (osg::UInt32 corner = 0; corner < length; ++corner)
                indices->push_back(static_cast<osg::UInt32>(below(vertices)));
        }
        return geometry;
    }

    std::mt19937 _random;
    ImportResult _result;
    std::vector<osg::GeometryRefPtr> _meshes;
    std::unordered_set<const void*> _counted;
};

template <class Values>
QByteArray bits(const Values& values)
{
    QByteArray text;
    for (osg::UInt32 i = 0; i < values->getSize(); ++i) {
        const auto value = values->getValue(i);
        text += QByteArray(reinterpret_cast<const char*>(&value), sizeof value).toHex();
    }
    return text;
}

} // namespace

QByteArray StreamTesting::encoded(const ImportResult& result)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ModelStreamWriter writer(buffer);
    if (!writer.writeProgress(0.5) || !writer.writeResult(result))
        qFatal("the scene cannot be sent");
    return buffer.data();
}

StreamTesting::Decoded StreamTesting::decoded(const QByteArray& stream, qsizetype portion,
                                              qint64 memory)
{
    ModelStreamReader reader(memory);
    if (portion == 0)
        portion = stream.size();
    for (qsizetype at = 0; at < stream.size(); at += portion)
        reader.feed(stream.constData() + at, std::min(portion, stream.size() - at));
    return {reader.state(), reader.result()};
}

QByteArrayList StreamTesting::everything(const ImportResult& result)
{
    if (result.root == osg::NullFC)
        return {result.error.toUtf8()};
    QByteArrayList all = SceneOutline::lines(result.root);
    QHash<const void*, QByteArray> meshes;
    for (const osg::NodePtr& node : SceneOutline::nodes(result.root)) {
        if (const osg::TransformPtr core = osg::TransformPtr::dcast(node->getCore())) {
            const osg::Matrix& matrix = core->getMatrix();
            all += QByteArray(reinterpret_cast<const char*>(&matrix), sizeof matrix).toHex();
        }
        const osg::GeometryPtr core = osg::GeometryPtr::dcast(node->getCore());
        if (core == osg::NullFC)
            continue;
        if (!meshes.contains(core.getCPtr())) {
            meshes[core.getCPtr()] = "mesh " + QByteArray::number(meshes.size());
            all += bits(core->getTypes()) + ' ' + bits(core->getLengths()) + ' ' +
                   bits(core->getIndices()) + ' ' + bits(core->getPositions()) + ' ' +
                   bits(core->getNormals());
        }
        all += meshes[core.getCPtr()];
    }
    const ImportStatistics& counts = result.statistics;
    for (const qint64 count :
         {qint64(counts.keyTransforms), qint64(counts.transforms), qint64(counts.groups),
          qint64(counts.geometries), qint64(counts.meshes), counts.vertices, counts.faces,
          qint64(counts.renamed)})
        all += QByteArray::number(count);
    return all;
}

ImportResult StreamTesting::randomScene(quint32 seed, int nodes)
{
    return SceneMaker(seed).make(nodes);
}

ImportResult StreamTesting::smallScene()
{
    // The first seed whose scene has every kind of node, and a mesh with faces that is shared.
    for (quint32 seed = 1;; ++seed) {
        const ImportResult result = randomScene(seed, 8);
        const ImportStatistics& counts = result.statistics;
        if (counts.keyTransforms > 0 && counts.transforms > 0 && counts.groups > 0 &&
            counts.meshes > 0 && counts.geometries > counts.meshes && counts.faces > 0 &&
            counts.vertices < 12 && result.statistics.renamed > 0)
            return result;
    }
}
