// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <optional>

class QPainter;

/// The part of the painter's plane from which strokes of its default pens can reach the picture.
/// Nothing when that is not known: a device that records what is painted, for one, keeps
/// everything.
std::optional<QRectF> GV_paintReach(const QPainter& painter);

/// A run of rows of the layout grid, both ends included.
struct GV_RowRange
{
    int first;
    int last;

    bool isEmpty() const { return first > last; }

    /// The rows of the run of which something may lie in the area, from the top of a row's box to
    /// the top of the next one's.
    GV_RowRange within(const QRectF& area) const;
};
