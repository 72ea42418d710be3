// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/ExposureEdits.h"
#include "workbench/timeline/FrameAxis.h"

#include <QRect>

class QFontMetrics;

/// Where things are on the time line, in pixels of its viewport: the ruler on top, the names at the
/// left, and between them the rows with the bars of the exposures. A value without owner.
class TimelineLayout
{
public:
    enum class Part
    {
        None,
        First,
        Middle,
        Last
    };

    FrameAxis& axis() { return _axis; }
    const FrameAxis& axis() const { return _axis; }

    QRect ruler() const;
    QRect names() const;
    /// Where the bars are.
    QRect frames() const;
    int rowHeight() const { return _rowHeight; }

    /// The whole row, names and frames; rows out of view lie above or below the viewport.
    QRect rowRect(int row) const;
    /// The row at the height, whether there is one or not; -1 above the first.
    int rowAt(int y) const;
    int frameAt(int x) const { return _axis.frameAt(x - frames().left()); }
    /// The left end of the frame; far away from the viewport for frames out of view.
    double xOf(double frame) const { return frames().left() + _axis.xOf(frame); }

    /// The bar, cut off a little outside the frames in view; empty when it is out of view.
    QRectF barRect(int row, const ExposureEdits::Exposure& exposure) const;
    /// What of the bar would be dragged from the x; the ends count only where they are in view, but
    /// an open end can be taken at the right edge.
    Part partAt(int x, const ExposureEdits::Exposure& exposure) const;

    /// Takes over the size of the viewport and the room that names and numbers need.
    void fit(const QSize& size, const QFontMetrics& metrics);
    /// How much of the rows is scrolled out at the top, in pixels.
    void setTop(int pixels) { _top = pixels; }

private:
    FrameAxis _axis;
    QSize _size;
    int _top = 0;
    int _rowHeight = 1;
    int _rulerHeight = 1;
    int _namesWidth = 0;
};
