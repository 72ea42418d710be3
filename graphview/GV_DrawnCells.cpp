// SPDX-License-Identifier: MIT

#include "graphview/GV_DrawnCells.h"

#include <algorithm>
#include <cmath>

namespace {

/// The raster engine works in fractions of a pixel of this size.
constexpr double cellsPerPixel = 64.0;

/// The cell of a coordinate, where one that lies exactly between two cells has one of its own:
/// which way it is rounded is the engine's affair.
std::int64_t cellOf(double pixels)
{
    const double cells = pixels * cellsPerPixel;
    const double whole = std::floor(cells);
    return 2 * static_cast<std::int64_t>(whole) + (cells == whole ? 0 : 1);
}

} // namespace

void GV_DrawnCells::start(bool enabled, const QTransform& toPixels)
{
    _enabled = enabled;
    _toPixels = toPixels;
    _spots.clear();
}

bool GV_DrawnCells::isNew(const QRectF& extent)
{
    if (!_enabled)
        return true;
    const double scaleX = _toPixels.m11();
    const double scaleY = _toPixels.m22();
    const std::int64_t top = cellOf(extent.top() * scaleY + _toPixels.dy());
    const Spot spot{cellOf(extent.left() * scaleX + _toPixels.dx()),
                    cellOf(extent.right() * scaleX + _toPixels.dx()),
                    cellOf(extent.bottom() * scaleY + _toPixels.dy())};
    if (_spots.empty() || top != _top) {
        _top = top;
        _spots.assign(1, spot);
        return true;
    }
    if (std::ranges::find(_spots, spot) != _spots.end())
        return false;
    _spots.push_back(spot);
    return true;
}
