// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/UT_SharedWeakPtr.h"

/// Keys the settings of an element's subnodes at a frame.
class SetSubnodeSettings : public CO_Command
{
public:
    SetSubnodeSettings(MO_ElementModule* element, int frame, const AT_ModelData& settings);

    bool empty() const override;
    bool execute() override;

private:
    UT_SharedWeakPtr<MO_ElementModule> _element;
    int _frame;
    /// What holds at that very frame when the command is executed next; null for nothing.
    std::unique_ptr<AT_ModelData> _other;
};
