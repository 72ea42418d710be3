// SPDX-License-Identifier: MIT
#include "host/scene/SC_SessionContext.h"

#include "host/actions/AC_Manager.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"

struct SC_SessionContext::Private
{
    AC_Manager actionManager;
    // The others note their changes with it until they are gone.
    TUSceneChangeManager changeManager;
    CO_CommandManager commandManager{&changeManager};
    SC_CurrentFrameInterface currentFrameInterface{&changeManager};
    SL_Selection selection{&changeManager};
};

SC_SessionContext::SC_SessionContext()
    : d(std::make_unique<Private>())
{
}

SC_SessionContext::~SC_SessionContext() = default;

AC_Manager* SC_SessionContext::actionManager() const
{
    return &d->actionManager;
}

TUSceneChangeManager* SC_SessionContext::changeManager() const
{
    return &d->changeManager;
}

CO_CommandManager* SC_SessionContext::commandManager() const
{
    return &d->commandManager;
}

SC_CurrentFrameInterface* SC_SessionContext::currentFrameInterface() const
{
    return &d->currentFrameInterface;
}

SL_Selection* SC_SessionContext::selection() const
{
    return &d->selection;
}
