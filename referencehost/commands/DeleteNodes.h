// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"
#include "host/scene/MO_GroupModule.h"

#include <vector>

class SL_Selection;

/// Takes nodes out of the scene, with what they hold. Undone, they come back to where they were;
/// those that were selected, with their sub-selection, are selected again, after all others.
class HOST_EXPORT DeleteNodes : public CO_Command
{
public:
    /// Nodes that are null, detached or held by another one of them are left out. The selection is
    /// not owned and must outlive the command.
    DeleteNodes(const std::vector<MO_Node*>& nodes, SL_Selection* selection);
    ~DeleteNodes() override;

    bool empty() const override;
    bool execute() override;
    bool undo() override;

private:
    struct Place
    {
        UT_SharedWeakPtr<MO_Node> group;
        UT_SharedWeakPtr<MO_Node> node;
        int position = 0;
        /// Null while the node is in the scene.
        std::unique_ptr<MO_Node> taken;
    };
    struct Selected
    {
        UT_SharedWeakPtr<MO_Node> node;
        std::vector<int> subSelectedIds;
    };
    void rememberSelection();

    std::vector<Place> _places;
    std::vector<Selected> _selected;
    SL_Selection* _selection;
};
