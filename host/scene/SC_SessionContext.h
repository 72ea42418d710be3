// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <memory>

class AC_Manager;
class CO_CommandManager;
class SC_CurrentFrameInterface;
class SL_Selection;
class TUSceneChangeManager;

/// What a view needs of the session that it works in. It owns what it gives out; nothing of it is
/// ever null.
class HOST_EXPORT SC_SessionContext
{
public:
    SC_SessionContext();
    ~SC_SessionContext();
    SC_SessionContext(const SC_SessionContext&) = delete;
    SC_SessionContext& operator=(const SC_SessionContext&) = delete;

    AC_Manager* actionManager() const;
    TUSceneChangeManager* changeManager() const;
    CO_CommandManager* commandManager() const;
    SC_CurrentFrameInterface* currentFrameInterface() const;
    SL_Selection* selection() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
