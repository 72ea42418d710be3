// SPDX-License-Identifier: MIT
#include "workbench/import/AssimpReader.h"

#include "workbench/import/ImportFileSystem.h"
#include "workbench/import/ImportProgressHandler.h"

#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>
#include <utility>
#include <vector>

namespace {

// Every other step either costs time for what nobody here uses or changes the hierarchy.
constexpr unsigned steps = aiProcess_Triangulate;

using NodePair = std::pair<aiNode*, const aiNode*>;

void addChildren(std::vector<NodePair>& pending, const NodePair& nodes)
{
    for (unsigned i = 0; i < nodes.first->mNumChildren; ++i) {
        if (nodes.first->mChildren[i] && nodes.second->mChildren[i])
            pending.emplace_back(nodes.first->mChildren[i], nodes.second->mChildren[i]);
    }
}

bool lacksName(const FormatHabits& habits, aiNode* root)
{
    std::vector<const aiNode*> pending{root};
    while (!pending.empty()) {
        const aiNode* const node = pending.back();
        pending.pop_back();
        if (!node)
            continue;
        if (habits.nodeName(*node).empty())
            return true;
        pending.insert(pending.end(), node->mChildren, node->mChildren + node->mNumChildren);
    }
    return false;
}

} // namespace

AssimpReader::AssimpReader(ImportProgress* progress, double end)
    : _progress(progress)
    , _importer(makeImporter(end))
{
}

AssimpReader::~AssimpReader() = default;

std::unique_ptr<Assimp::Importer> AssimpReader::makeImporter(double end) const
{
    auto importer = std::make_unique<Assimp::Importer>();
    // The importer owns both.
    importer->SetIOHandler(new ImportFileSystem);
    importer->SetProgressHandler(new ImportProgressHandler(_progress, end));
    // A file without meshes would otherwise get made-up ones in the shape of its skeleton.
    importer->SetPropertyBool(AI_CONFIG_IMPORT_NO_SKELETON_MESHES, true);
    importer->SetPropertyBool(AI_CONFIG_IMPORT_COLLADA_USE_COLLADA_NAMES, true);
    return importer;
}

bool AssimpReader::read(const std::string& path)
{
    _scene = _importer->ReadFile(path, steps);
    if (!_scene || !_scene->mRootNode) {
        _scene = nullptr;
        return false;
    }
    const int index = _importer->GetPropertyInteger("importerIndex", -1);
    _habits = FormatHabits(index < 0 ? nullptr : _importer->GetImporterInfo(index), path);
    collectMovedNames(*_scene);
    if (_habits.isCollada() && lacksName(_habits, _scene->mRootNode))
        completeColladaNames(path);
    return true;
}

QString AssimpReader::error() const
{
    return QString::fromUtf8(_importer->GetErrorString());
}

bool AssimpReader::isUnknownKind() const
{
    return error().startsWith(QLatin1String("No suitable reader found"));
}

void AssimpReader::collectMovedNames(const aiScene& scene)
{
    const auto add = [this](const aiString& name) { _movedNames.emplace(name.data, name.length); };
    for (unsigned i = 0; i < scene.mNumAnimations; ++i) {
        const aiAnimation* const animation = scene.mAnimations[i];
        for (unsigned j = 0; animation && j < animation->mNumChannels; ++j) {
            if (animation->mChannels[j])
                add(animation->mChannels[j]->mNodeName);
        }
    }
    for (unsigned i = 0; i < scene.mNumMeshes; ++i) {
        const aiMesh* const mesh = scene.mMeshes[i];
        for (unsigned j = 0; mesh && mesh->mBones && j < mesh->mNumBones; ++j) {
            if (mesh->mBones[j])
                add(mesh->mBones[j]->mName);
        }
    }
}

void AssimpReader::completeColladaNames(const std::string& path)
{
    // Assimp gives all nodes either their names or their identifiers. A second reading finds the
    // identifiers of those that have no name.
    const std::unique_ptr<Assimp::Importer> importer = makeImporter(0.0);
    importer->SetPropertyBool(AI_CONFIG_IMPORT_COLLADA_USE_COLLADA_NAMES, false);
    const aiScene* const byIdentifier = importer->ReadFile(path, 0);
    if (!byIdentifier || !byIdentifier->mRootNode)
        return;
    collectMovedNames(*byIdentifier);
    std::vector<NodePair> pending{{_scene->mRootNode, byIdentifier->mRootNode}};
    while (!pending.empty()) {
        const NodePair nodes = pending.back();
        pending.pop_back();
        if (_habits.nodeName(*nodes.first).empty())
            nodes.first->mName = nodes.second->mName;
        if (nodes.first->mNumChildren == nodes.second->mNumChildren)
            addChildren(pending, nodes);
    }
}
