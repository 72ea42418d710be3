// SPDX-License-Identifier: MIT
#include "workbench/import/NodeRoles.h"

#include "workbench/import/AssimpReader.h"

#include <assimp/scene.h>
#include <cmath>

NodeRoles::NodeRoles(const AssimpReader& reader)
    : _reader(reader)
{
}

NodeRole NodeRoles::roleOf(const aiNode& node, const aiNode* parent) const
{
    const FormatHabits& habits = _reader.habits();
    const std::string name = habits.nodeName(node);
    if (name.empty() || habits.isHelper(name))
        return NodeRole::Transform;
    // An added root often turns the model upright, which makes it no part of the model. If it
    // holds the meshes, though, it is all there is to act on.
    if (!parent && node.mNumMeshes == 0 && habits.isAddedRoot(name))
        return hasMatrix(node) ? NodeRole::Transform : NodeRole::Group;
    return carriesTransform(node, parent) ? NodeRole::Key : NodeRole::Group;
}

bool NodeRoles::hasMatrix(const aiNode& node)
{
    // Assimp's own test lets a hundredth pass, which is a visible move in a model in metres.
    constexpr float tolerance = 1.0e-6F;
    const aiMatrix4x4 identity;
    for (unsigned row = 0; row < 4; ++row) {
        for (unsigned column = 0; column < 4; ++column) {
            const float off = std::abs(node.mTransformation[row][column] - identity[row][column]);
            if (!(off <= tolerance))
                return true;
        }
    }
    return false;
}

bool NodeRoles::carriesTransform(const aiNode& node, const aiNode* parent) const
{
    if (node.mNumMeshes > 0 || hasMatrix(node))
        return true;
    const auto& moved = _reader.movedNames();
    if (moved.find(std::string(node.mName.data, node.mName.length)) != moved.end())
        return true;
    // Where a transform has pivots its parts are spread over helpers, above and below the node,
    // and the node itself is left with none.
    if (parent && isPivotOf(*parent, node))
        return true;
    for (unsigned i = 0; i < node.mNumChildren; ++i) {
        if (node.mChildren[i] && isPivotOf(*node.mChildren[i], node))
            return true;
    }
    return false;
}

bool NodeRoles::isPivotOf(const aiNode& helper, const aiNode& node) const
{
    const std::string start = _reader.habits().nodeName(node) + "_$";
    const std::string name = _reader.habits().nodeName(helper);
    return _reader.habits().isHelper(name) && name.compare(0, start.size(), start) == 0;
}
