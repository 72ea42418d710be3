// SPDX-License-Identifier: MIT
#include "referencehost/commands/DeleteNodes.h"

#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/scene/SceneWalk.h"

#include <algorithm>

namespace {

bool isHeldByAny(const MO_Node* node, const std::vector<MO_Node*>& others)
{
    for (const MO_GroupModule* group = node->parentGroup(); group; group = group->parentGroup()) {
        if (std::ranges::find(others, group) != others.end())
            return true;
    }
    return false;
}

} // namespace

DeleteNodes::DeleteNodes(const std::vector<MO_Node*>& nodes, SL_Selection* selection)
    : _selection(selection)
{
    const auto isNew = [this](const MO_Node* node) {
        return std::ranges::none_of(
            _places, [node](const Place& place) { return place.node.get() == node; });
    };
    for (MO_Node* node : nodes) {
        if (node && node->parentGroup() && isNew(node) && !isHeldByAny(node, nodes))
            _places.push_back({UT_SharedWeakPtr<MO_Node>(node->parentGroup()),
                               UT_SharedWeakPtr<MO_Node>(node), 0, nullptr});
    }
}

DeleteNodes::~DeleteNodes() = default;

bool DeleteNodes::empty() const
{
    return _places.empty();
}

void DeleteNodes::rememberSelection()
{
    _selected.clear();
    for (MO_Node* node : _selection->nodes()) {
        const auto isTaken = [node](const Place& place) {
            const std::vector<MO_Node*> taken = subtreeOf(*place.node.get());
            return std::ranges::find(taken, node) != taken.end();
        };
        if (std::ranges::any_of(_places, isTaken))
            _selected.push_back(
                {UT_SharedWeakPtr<MO_Node>(node), node->selInterface()->subSelectedIds()});
    }
}

bool DeleteNodes::execute()
{
    // Others may have taken nodes out meanwhile.
    std::erase_if(_places, [](const Place& place) {
        return !place.node.get() || !place.node->parentGroup();
    });
    rememberSelection();
    const SL_Selection::BatchSelectionModeScope scope(_selection);
    for (Place& place : _places) {
        MO_GroupModule* group = place.node->parentGroup();
        place.position = group->indexOf(place.node.get());
        place.taken = group->takeNode(place.node.get());
    }
    return !_places.empty();
}

bool DeleteNodes::undo()
{
    // All of them come back or none.
    const auto isGone = [](const Place& place) {
        return !dynamic_cast<MO_GroupModule*>(place.group.get());
    };
    if (std::ranges::any_of(_places, isGone))
        return false;
    const SL_Selection::BatchSelectionModeScope scope(_selection);
    for (auto place = _places.rbegin(); place != _places.rend(); ++place) {
        auto* group = dynamic_cast<MO_GroupModule*>(place->group.get());
        MO_Node* node = group->insertNode(std::move(place->taken), place->position);
        // Its drawings come back with it.
        if (TUSceneChangeManager* changes = changeManagerOf(*node))
            changes->emitNodeChanged(node);
    }
    for (const Selected& selected : _selected) {
        _selection->add(selected.node.get());
        for (const int id : selected.subSelectedIds)
            selected.node->selInterface()->subSelect(id, true);
    }
    return true;
}
