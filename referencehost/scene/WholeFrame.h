// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <limits>
#include <optional>

/// The frame that a time lies in; nothing for a time beyond all frames or one that is no number.
inline std::optional<int> wholeFrame(double time)
{
    const double frame = std::floor(time);
    if (frame >= std::numeric_limits<int>::min() && frame <= std::numeric_limits<int>::max())
        return static_cast<int>(frame);
    return std::nullopt;
}
