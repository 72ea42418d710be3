// SPDX-License-Identifier: MIT
#include "host/commands/CO_Command.h"

CO_Command::~CO_Command() = default;

bool CO_Command::empty() const
{
    return false;
}

bool CO_Command::undo()
{
    return execute();
}

bool CO_Command::redo()
{
    return execute();
}
