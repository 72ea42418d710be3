// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

class AC_Manager;
class PLUG_EditionStackInterface;
class PLUG_KeyStateInterface;
class SC_SessionContext;
class SL_Selection;

/// The way from a plug-in to the running application. Everything is null while no session is open;
/// nothing is owned by the caller.
class HOST_EXPORT PLUG_Services
{
public:
    static AC_Manager* getActionManager();
    static PLUG_EditionStackInterface* getEditionStackInterface();
    static PLUG_KeyStateInterface* getKeyStateInterface();
    static SL_Selection* getSelection();
    static SC_SessionContext* getSessionContext();
};
