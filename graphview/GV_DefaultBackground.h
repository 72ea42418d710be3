// SPDX-License-Identifier: MIT
#pragma once

/// What the canvas and the navigator over it have as background unless the preference
/// "ST_3DNODEVIEW_BACKGROUND_COLOR" says otherwise: alpha, red, green, blue from the top byte down.
constexpr unsigned int GV_defaultBackground = 0xff787878;
