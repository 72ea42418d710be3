// SPDX-License-Identifier: MIT

#include "graphview/GV_RowRange.h"

#include "graphview/GV_LayoutGrid.h"

#include <QRectF>
#include <algorithm>
#include <cmath>

namespace {

/// Rows taken in beyond what was asked for: far down, positions in single precision are rounded by
/// whole units.
constexpr qreal spareRows = 1.0;

} // namespace

GV_RowRange GV_RowRange::within(const QRectF& area) const
{
    const auto clamped = [this](qreal row) {
        return static_cast<int>(std::clamp(row, qreal(first) - 1.0, qreal(last) + 1.0));
    };
    return {
        std::max(first,
                 clamped(std::floor(area.top() / GV_LayoutGrid::rowPitch) - 1.0 - spareRows)),
        std::min(last, clamped(std::ceil(area.bottom() / GV_LayoutGrid::rowPitch) + spareRows))};
}
