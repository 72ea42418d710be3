// SPDX-License-Identifier: MIT
#include "referencehost/selection/SelectionChanges.h"

#include "host/scene/MO_Node.h"
#include "host/scene/TUSceneChangeManager.h"

#include <utility>

SelectionChanges::SelectionChanges(TUSceneChangeManager* changeManager,
                                   const SelectionMembers& members)
    : _changeManager(changeManager)
    , _members(members)
{
}

void SelectionChanges::aboutToChange()
{
    if (_openBatches > 0 && !_before)
        _before = currentState();
}

void SelectionChanges::selectionChanged()
{
    if (_openBatches == 0)
        _changeManager->emitSelectionChanged();
}

void SelectionChanges::subSelectionChanged()
{
    if (_openBatches == 0)
        _changeManager->emitSubSelectionChanged();
}

void SelectionChanges::beginBatch()
{
    ++_openBatches;
}

void SelectionChanges::endBatch()
{
    if (--_openBatches > 0 || !_before)
        return;
    const State before = *std::exchange(_before, std::nullopt);
    const State after = currentState();
    const bool otherNodes = before.nodes != after.nodes;
    const bool otherSubSelections = before.subSelections != after.subSelections;
    if (otherNodes)
        _changeManager->emitSelectionChanged();
    if (otherSubSelections)
        _changeManager->emitSubSelectionChanged();
    if (otherNodes || otherSubSelections)
        _changeManager->notify();
}

SelectionChanges::State SelectionChanges::currentState() const
{
    State state;
    state.nodes.reserve(_members.size());
    for (const auto& [orderId, selected] : _members) {
        const UT_SharedWeakPtr<MO_Node>& node = state.nodes.emplace_back(selected->selectable());
        if (selected->hasSubSelection())
            state.subSelections.emplace(node, selected->subSelectedIds());
    }
    return state;
}
