// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

/// A change that can be taken back. Executing swaps what is with what the command holds, so the
/// same operation does, undoes and redoes; a command for which that is not so overrides the others.
class HOST_EXPORT CO_Command
{
public:
    CO_Command() = default;
    CO_Command(const CO_Command&) = delete;
    CO_Command& operator=(const CO_Command&) = delete;
    virtual ~CO_Command();

    /// True when the command would change nothing whatever the state; such a one is never executed.
    virtual bool empty() const;

    /// False when nothing could be done; the state is then as before.
    virtual bool execute() = 0;
    virtual bool undo();
    virtual bool redo();
};
