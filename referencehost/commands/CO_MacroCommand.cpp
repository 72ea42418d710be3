// SPDX-License-Identifier: MIT
#include "host/commands/CO_MacroCommand.h"

#include <algorithm>

CO_MacroCommand::CO_MacroCommand() = default;

CO_MacroCommand::~CO_MacroCommand() = default;

void CO_MacroCommand::append(CO_Command* command)
{
    if (command)
        _parts.emplace_back(command);
}

bool CO_MacroCommand::empty() const
{
    return std::ranges::all_of(_parts, [](const auto& part) { return part->empty(); });
}

void CO_MacroCommand::undoParts(std::size_t count)
{
    while (count > 0)
        _parts[--count]->undo();
}

bool CO_MacroCommand::undo()
{
    undoParts(_parts.size());
    return true;
}

bool CO_MacroCommand::redo()
{
    for (const std::unique_ptr<CO_Command>& part : _parts)
        part->redo();
    return true;
}

CO_OrCommand::CO_OrCommand(bool executed)
    : _executed(executed)
{
}

CO_OrCommand::~CO_OrCommand() = default;

bool CO_OrCommand::execute()
{
    if (!_executed)
        std::erase_if(parts(), [](const auto& part) { return part->empty() || !part->execute(); });
    _executed = true;
    return !parts().empty();
}

CO_AndCommand::CO_AndCommand() = default;

CO_AndCommand::~CO_AndCommand() = default;

bool CO_AndCommand::execute()
{
    std::erase_if(parts(), [](const auto& part) { return part->empty(); });
    for (std::size_t i = 0; i < parts().size(); ++i) {
        if (!parts()[i]->execute()) {
            undoParts(i);
            return false;
        }
    }
    return !parts().empty();
}
