// SPDX-License-Identifier: MIT
#include "host/services/PLUG_Services.h"

#include "referencehost/session/HostSession.h"

AC_Manager* PLUG_Services::getActionManager()
{
    const SC_SessionContext* context = getSessionContext();
    return context ? context->actionManager() : nullptr;
}

PLUG_EditionStackInterface* PLUG_Services::getEditionStackInterface()
{
    HostSession* session = HostSession::current();
    return session ? &session->editionStack() : nullptr;
}

PLUG_KeyStateInterface* PLUG_Services::getKeyStateInterface()
{
    HostSession* session = HostSession::current();
    return session ? &session->keyState() : nullptr;
}

SL_Selection* PLUG_Services::getSelection()
{
    const SC_SessionContext* context = getSessionContext();
    return context ? context->selection() : nullptr;
}

SC_SessionContext* PLUG_Services::getSessionContext()
{
    HostSession* session = HostSession::current();
    return session ? &session->context() : nullptr;
}
