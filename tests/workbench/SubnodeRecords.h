// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelNodeData.h"

/// Settings of a subnode as tests of listings and of isolation need them.
namespace SubnodeRecords {

inline AT_ModelNodeData record(bool visible, bool localVisible, bool hasTransformation)
{
    AT_ModelNodeData data;
    data.visible = visible;
    data.localVisible = localVisible;
    data.hasTransformation = hasTransformation;
    return data;
}

inline const AT_ModelNodeData off = record(false, true, false);
inline const AT_ModelNodeData hidden = record(true, false, false);
inline const AT_ModelNodeData offAndHidden = record(false, false, false);
inline const AT_ModelNodeData movable = record(true, true, true);
inline const AT_ModelNodeData offAndMovable = record(false, true, true);

} // namespace SubnodeRecords
