// SPDX-License-Identifier: MIT
#include "referencehost/commands/CommandSequence.h"

void CommandSequence::append(std::unique_ptr<CO_Command> executed)
{
    _commands.push_back(std::move(executed));
}

bool CommandSequence::empty() const
{
    return _commands.empty();
}

bool CommandSequence::execute()
{
    return redo();
}

bool CommandSequence::undo()
{
    bool done = false;
    for (auto command = _commands.rbegin(); command != _commands.rend(); ++command)
        done |= (*command)->undo();
    return done;
}

bool CommandSequence::redo()
{
    bool done = false;
    for (const std::unique_ptr<CO_Command>& command : _commands)
        done |= command->redo();
    return done;
}
