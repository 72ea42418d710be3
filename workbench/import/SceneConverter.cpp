// SPDX-License-Identifier: MIT
#include "workbench/import/SceneConverter.h"

#include "workbench/import/AssimpReader.h"
#include "workbench/import/GeometryBuilder.h"
#include "workbench/modelstream/ImportProgress.h"

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <assimp/scene.h>
#include <cmath>

namespace {

osg::Matrix toMatrix(const aiMatrix4x4& from)
{
    osg::Matrix matrix;
    for (osg::UInt32 column = 0; column < 4; ++column) {
        for (osg::UInt32 row = 0; row < 4; ++row) {
            // One such number would make everything below it vanish.
            if (!std::isfinite(from[row][column]))
                return osg::Matrix();
            matrix[column][row] = from[row][column];
        }
    }
    return matrix;
}

std::size_t countNodes(const aiNode* root)
{
    std::size_t count = 0;
    std::vector<const aiNode*> pending{root};
    while (!pending.empty()) {
        const aiNode* const node = pending.back();
        pending.pop_back();
        if (!node)
            continue;
        ++count;
        pending.insert(pending.end(), node->mChildren, node->mChildren + node->mNumChildren);
    }
    return count;
}

} // namespace

SceneConverter::SceneConverter(const AssimpReader& reader, ImportProgress* progress, double begin)
    : _reader(reader)
    , _progress(progress)
    , _begin(begin)
    , _roles(reader)
    , _geometries(reader.scene()->mNumMeshes)
{
}

bool SceneConverter::isEmpty(const AssimpReader& reader)
{
    const aiNode& root = *reader.scene()->mRootNode;
    return root.mNumChildren == 0 && root.mNumMeshes == 0;
}

osg::NodeRefPtr SceneConverter::convert()
{
    const aiNode* const first = _reader.scene()->mRootNode;
    const std::size_t known = countNodes(first);
    osg::NodeRefPtr root;
    std::vector<Pending> pending{{first, nullptr, osg::NullFC}};
    for (std::size_t done = 0; !pending.empty(); ++done) {
        if (!goesOn(done, known))
            return osg::NodeRefPtr();
        const Pending next = pending.back();
        pending.pop_back();
        if (!next.node)
            continue;
        const osg::NodePtr node = makeNode(next);
        if (next.above)
            next.above->addChild(node);
        else
            root = node;
        addMeshes(*next.node, node);
        for (unsigned i = next.node->mNumChildren; i-- > 0;)
            pending.push_back({next.node->mChildren[i], next.node, node});
    }
    giveNames();
    return root;
}

osg::NodePtr SceneConverter::makeNode(const Pending& pending)
{
    const NodeRole role = _roles.roleOf(*pending.node, pending.parent);
    const osg::NodePtr node = osg::makeNodeFor(makeCore(*pending.node, role));
    std::string name = _reader.habits().nodeName(*pending.node);
    if (!name.empty())
        (role == NodeRole::Key ? _keyNames : _otherNames).push_back({node, std::move(name)});
    return node;
}

osg::NodeCorePtr SceneConverter::makeCore(const aiNode& node, NodeRole role)
{
    if (role == NodeRole::Group) {
        ++_statistics.groups;
        return osg::Group::create();
    }
    osg::TransformPtr core;
    if (role == NodeRole::Key) {
        ++_statistics.keyTransforms;
        core = osg::KeyTransform::create();
    } else {
        ++_statistics.transforms;
        core = osg::Transform::create();
    }
    osg::beginEditCP(core, osg::Transform::MatrixFieldMask);
    core->setMatrix(toMatrix(node.mTransformation));
    osg::endEditCP(core, osg::Transform::MatrixFieldMask);
    return core;
}

void SceneConverter::addMeshes(const aiNode& node, const osg::NodePtr& below)
{
    for (unsigned i = 0; node.mMeshes && i < node.mNumMeshes; ++i) {
        const unsigned mesh = node.mMeshes[i];
        const aiScene& scene = *_reader.scene();
        if (mesh >= scene.mNumMeshes || !scene.mMeshes[mesh])
            continue;
        const osg::NodePtr leaf = osg::makeNodeFor(geometryOf(mesh));
        ++_statistics.geometries;
        below->addChild(leaf);
        std::string name = _reader.habits().meshName(*scene.mMeshes[mesh]);
        if (!name.empty())
            _meshNames.push_back({leaf, std::move(name)});
    }
}

osg::GeometryPtr SceneConverter::geometryOf(unsigned mesh)
{
    osg::GeometryRefPtr& geometry = _geometries[mesh];
    if (geometry == osg::NullFC) {
        const GeometryBuilder builder(*_reader.scene()->mMeshes[mesh]);
        geometry = builder.geometry();
        ++_statistics.meshes;
        _statistics.vertices += builder.vertices();
        _statistics.faces += builder.faces();
    }
    return geometry;
}

bool SceneConverter::goesOn(std::size_t done, std::size_t known)
{
    constexpr std::size_t stride = 256;
    if (!_progress || done % stride != 0)
        return true;
    if (_progress->isCancelled())
        return false;
    _progress->report(_begin +
                      (1.0 - _begin) * static_cast<double>(done) / static_cast<double>(known));
    return true;
}

void SceneConverter::giveNames()
{
    // Key nodes choose first and meshes last: people know the names of the parts.
    UniqueNames names;
    for (const auto* list : {&_keyNames, &_otherNames, &_meshNames}) {
        for (const Named& named : *list)
            names.announce(named.name);
    }
    for (const auto* list : {&_keyNames, &_otherNames, &_meshNames}) {
        for (const Named& named : *list) {
            const std::string name = names.take(named.name);
            _statistics.renamed += name != named.name;
            osg::setName(named.node, name);
        }
    }
}
