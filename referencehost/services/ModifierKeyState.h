// SPDX-License-Identifier: MIT
#pragma once

#include "host/services/PLUG_KeyStateInterface.h"

/// Tells the selection modifiers from the keyboard of the application. Owned by the session.
class ModifierKeyState : public PLUG_KeyStateInterface
{
public:
    PLUG_KeyState keyState() const override;
};
