// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"

#include <memory>
#include <vector>

/// Commands that were executed one after the other and are undone and redone together.
class CommandSequence : public CO_Command
{
public:
    void append(std::unique_ptr<CO_Command> executed);

    bool empty() const override;
    /// Executes them again, in order.
    bool execute() override;
    /// In reverse order.
    bool undo() override;
    bool redo() override;

private:
    std::vector<std::unique_ptr<CO_Command>> _commands;
};
