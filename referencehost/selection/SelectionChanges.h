// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/UT_SharedWeakPtr.h"
#include "referencehost/selection/SelectionMembers.h"

#include <optional>

class MO_Node;
class TUSceneChangeManager;

/// What changed in a selection. Outside a batch every change is noted with the change manager as it
/// comes. A batch remembers how things stood before its first change, and at its end tells what is
/// different from that, so that changes which cancel each other out are none. Part of a selection.
class SelectionChanges
{
public:
    /// Neither is owned; both must outlive this object.
    SelectionChanges(TUSceneChangeManager* changeManager, const SelectionMembers& members);

    /// To be called before every change.
    void aboutToChange();
    /// To be called after a change.
    void selectionChanged();
    void subSelectionChanged();

    void beginBatch();
    void endBatch();

private:
    struct State
    {
        std::vector<UT_SharedWeakPtr<MO_Node>> nodes;
        /// Only of nodes that have a sub-selection.
        std::map<UT_SharedWeakPtr<MO_Node>, std::vector<int>> subSelections;
    };
    State currentState() const;

    TUSceneChangeManager* _changeManager;
    const SelectionMembers& _members;
    int _openBatches = 0;
    std::optional<State> _before;
};
