// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <memory>

class CO_CommandManager;
class SL_Selection;

/// Selecting as something that can be undone.
class HOST_EXPORT SL_SelectionCommands
{
public:
    /// Makes an undo step of what happens to the selection and its sub-selections while it is open;
    /// none when they end up as they were. Changes are told as in a batch scope, when it ends.
    class HOST_EXPORT Scope
    {
    public:
        /// Both must outlive the scope.
        Scope(CO_CommandManager* manager, SL_Selection* selection);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        struct Private;
        std::unique_ptr<Private> d;
    };
};
