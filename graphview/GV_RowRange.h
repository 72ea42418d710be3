// SPDX-License-Identifier: MIT
#pragma once

class QRectF;

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
