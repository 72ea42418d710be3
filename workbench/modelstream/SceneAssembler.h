// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ImportResult.h"
#include "workbench/modelstream/MeshAssembler.h"

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>
#include <memory>
#include <string_view>
#include <unordered_set>
#include <vector>

class QDataStream;

/// Puts a scene graph together from what a stream says, and trusts none of it. Every function is
/// false for something that no importer could have sent, or that takes more memory than allowed;
/// what is there then is of no use. Owns the nodes until they are taken.
class SceneAssembler
{
public:
    /// The limit, in bytes, is for the whole scene graph.
    explicit SceneAssembler(qint64 memoryLimit);

    bool startMesh(quint32 primitives, quint32 indices, quint32 vertices);
    bool addToMesh(ModelStream::Frame kind, const char* content, qsizetype size);
    /// Reads whole nodes to the end of the stream's data.
    bool addNodes(QDataStream& stream);
    /// The numbers are those that the sender counted.
    bool finish(quint32 nodes, quint32 meshes, quint32 renamed);

    /// Whether nothing has come yet.
    bool isEmpty() const { return _path.empty() && _meshes.empty() && !_mesh; }
    osg::NodePtr root() const { return _root; }
    const ImportStatistics& statistics() const { return _statistics; }

private:
    bool addNode(QDataStream& stream);
    bool attach(const osg::NodePtr& node, quint32 level);
    bool readName(QDataStream& stream, const osg::NodePtr& node);
    osg::NodeCorePtr readCore(QDataStream& stream, ModelStream::Kind kind);
    osg::NodeCorePtr readGeometry(QDataStream& stream);
    bool finishMesh();
    bool take(qint64 bytes);

    qint64 _memoryLeft;
    ImportStatistics _statistics;
    osg::NodeRefPtr _root;
    /// From the root to the last node, and whether each may have children.
    std::vector<std::pair<osg::NodePtr, bool>> _path;
    /// Views of the names that the nodes keep.
    std::unordered_set<std::string_view> _names;
    std::unique_ptr<MeshAssembler> _mesh;
    std::vector<osg::GeometryRefPtr> _meshes;
    quint32 _meshesShown = 0;
};
