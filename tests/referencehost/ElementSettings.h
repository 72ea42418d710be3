// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"

#include <map>

/// Settings of the subnodes of an element by the frame that sets them.
using Settings = std::map<int, AT_ModelData>;

/// Those of the frames 1 to 20.
inline Settings settingsOf(const MO_ElementModule& element)
{
    Settings settings;
    for (int frame = 1; frame <= 20; ++frame) {
        const AT_ModelData* data = element.seqMeta(frame);
        int setAt = 0;
        if (data && element.frameOfSeqMeta(data, setAt))
            settings[setAt] = *data;
    }
    return settings;
}
