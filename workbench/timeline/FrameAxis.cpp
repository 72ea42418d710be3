// SPDX-License-Identifier: MIT
#include "workbench/timeline/FrameAxis.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double closest = 64;
constexpr double farthest = 1.0 / 256;

} // namespace

int FrameAxis::frameAt(double x) const
{
    const double frame = std::floor(_origin + x / _pixelsPerFrame);
    return static_cast<int>(std::clamp<double>(frame, 1, std::numeric_limits<int>::max()));
}

int FrameAxis::framesIn(int width) const
{
    return std::max(1, static_cast<int>(width / _pixelsPerFrame));
}

qint64 FrameAxis::labelDistance(int pixels) const
{
    for (qint64 power = 1;; power *= 10) {
        for (const int part : std::array{1, 2, 5}) {
            if (static_cast<double>(power * part) * _pixelsPerFrame >= pixels)
                return power * part;
        }
    }
}

void FrameAxis::setOrigin(double frame)
{
    _origin = std::max(1.0, frame);
}

void FrameAxis::zoom(double factor, double x)
{
    const double kept = _origin + x / _pixelsPerFrame;
    _pixelsPerFrame = std::clamp(_pixelsPerFrame * factor, farthest, closest);
    setOrigin(kept - x / _pixelsPerFrame);
}
