// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

/// The modifiers of a selecting gesture, as they are held at the moment of asking.
struct PLUG_KeyState
{
    /// Actions on subnodes add to the sub-selection.
    bool append = false;
    /// Clicks and marquees in the views extend the selection.
    bool extend = false;
};

/// Tells which selection modifiers are held.
class HOST_EXPORT PLUG_KeyStateInterface
{
public:
    virtual ~PLUG_KeyStateInterface();

    virtual PLUG_KeyState keyState() const = 0;
};
