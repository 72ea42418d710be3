// SPDX-License-Identifier: MIT

#include "graphview/GV_SelectionModifier.h"

#include "host/services/PLUG_KeyStateInterface.h"
#include "host/services/PLUG_Services.h"

bool GV_isExtendingSelection()
{
    const PLUG_KeyStateInterface* keys = PLUG_Services::getKeyStateInterface();
    return keys && keys->keyState().extend;
}
