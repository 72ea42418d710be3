// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

class TUScene;

/// Which scene is being edited.
class HOST_EXPORT PLUG_EditionStackInterface
{
public:
    virtual ~PLUG_EditionStackInterface();

    /// Null when no scene is open. Not owned by the caller.
    virtual TUScene* currentScene() const = 0;
};
