// SPDX-License-Identifier: MIT
#include "referencehost/scene/SceneWalk.h"

#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUScene.h"

std::vector<MO_Node*> nodesBelow(const MO_GroupModule& group)
{
    std::vector<MO_Node*> found;
    // Last in, first out, so what is pushed goes in backwards.
    const std::vector<MO_Node*> top = group.nodes();
    std::vector<MO_Node*> pending(top.rbegin(), top.rend());
    while (!pending.empty()) {
        MO_Node* node = pending.back();
        pending.pop_back();
        found.push_back(node);
        if (const auto* inner = dynamic_cast<const MO_GroupModule*>(node)) {
            const std::vector<MO_Node*> held = inner->nodes();
            pending.insert(pending.end(), held.rbegin(), held.rend());
        }
    }
    return found;
}

std::vector<MO_Node*> subtreeOf(MO_Node& node)
{
    std::vector<MO_Node*> found{&node};
    if (const auto* group = dynamic_cast<const MO_GroupModule*>(&node)) {
        const std::vector<MO_Node*> below = nodesBelow(*group);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

TUSceneChangeManager* changeManagerOf(const MO_Node& node)
{
    const TUScene* scene = node.scene();
    return scene ? scene->changeManager() : nullptr;
}
