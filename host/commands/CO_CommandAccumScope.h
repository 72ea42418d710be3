// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>

class CO_Command;
class CO_CommandManager;

/// While it is open, everything that the manager executes is gathered into one undo step, which is
/// made when the scope ends; without anything executed there is none. Of nested scopes the
/// outermost makes the step.
class HOST_EXPORT CO_CommandAccumScope
{
public:
    /// The manager must outlive the scope. The macro and the mode are for hosts that gather into a
    /// command of their own; here they are null and 0.
    CO_CommandAccumScope(CO_CommandManager* manager, const QString& name,
                         CO_Command* macro = nullptr, int mode = 0);
    ~CO_CommandAccumScope();
    CO_CommandAccumScope(const CO_CommandAccumScope&) = delete;
    CO_CommandAccumScope& operator=(const CO_CommandAccumScope&) = delete;

private:
    CO_CommandManager* _manager;
};
