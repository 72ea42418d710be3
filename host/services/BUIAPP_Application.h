// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

/// What views ask of the running application.
class HOST_EXPORT BUIAPP_Application
{
public:
    /// Whether the key, a Qt::Key, is held down now. False while the application is not the one
    /// that keys go to.
    static bool isKeyPressed(int key);
};
