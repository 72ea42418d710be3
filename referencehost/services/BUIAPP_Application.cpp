// SPDX-License-Identifier: MIT
#include "host/services/BUIAPP_Application.h"

#include "referencehost/session/HostSession.h"

bool BUIAPP_Application::isKeyPressed(int key)
{
    const HostSession* session = HostSession::current();
    return session && session->isKeyPressed(key);
}
