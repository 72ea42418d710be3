// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/UT_SharedWeakPtr.h"

#include <functional>
#include <vector>

/// Changes the records of some subnodes of an element and keys the outcome at a frame. It starts
/// from what holds when it is executed, so several of them add up.
class SetSubnodeSettings : public CO_Command
{
public:
    using Change = std::function<void(AT_ModelNodeData&)>;

    SetSubnodeSettings(MO_ElementModule* element, int frame, std::vector<AT_ModelNodeKey> keys,
                       Change change);

    /// What holds, with the change made to the records of the keys. Records that stay as they are
    /// are not written.
    static AT_ModelData changed(const AT_ModelData* held, const std::vector<AT_ModelNodeKey>& keys,
                                const Change& change);

    bool empty() const override;
    bool execute() override;
    bool undo() override;
    bool redo() override;

private:
    bool swap();

    UT_SharedWeakPtr<MO_ElementModule> _element;
    int _frame;
    std::vector<AT_ModelNodeKey> _keys;
    Change _change;
    /// What comes to that very frame with the next swap; null for nothing.
    std::unique_ptr<AT_ModelData> _other;
};
