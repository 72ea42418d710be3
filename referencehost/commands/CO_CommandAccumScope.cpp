// SPDX-License-Identifier: MIT
#include "host/commands/CO_CommandAccumScope.h"

#include "host/commands/CO_CommandManager.h"

CO_CommandAccumScope::CO_CommandAccumScope(CO_CommandManager* manager, const QString& name,
                                           CO_Command*, int)
    : _manager(manager)
{
    if (_manager)
        _manager->beginAccumulation(name);
}

CO_CommandAccumScope::~CO_CommandAccumScope()
{
    if (_manager)
        _manager->endAccumulation();
}
