// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/TimelineLayout.h"

/// One drag of an exposure's end, to trim it, or of its middle, to move it in time. It only tells
/// what the row would show; whoever owns the drag previews that, and takes it over at the end.
class ExposureDrag
{
public:
    using Exposures = ExposureEdits::Exposures;

    /// The index must be one of the exposures; the part is not None. The frame is the one that the
    /// drag begins at.
    ExposureDrag(int row, Exposures before, int index, TimelineLayout::Part part, int frame);

    int row() const { return _row; }
    TimelineLayout::Part part() const { return _part; }
    /// What the row showed when the drag began.
    const Exposures& before() const { return _before; }
    const Exposures& after() const { return _after; }
    /// The exposure that is dragged, as it is afterwards; an index into after().
    int index() const;

    void moveTo(int frame);

private:
    int _row;
    Exposures _before;
    Exposures _after;
    int _index;
    TimelineLayout::Part _part;
    int _pressed;
    /// A frame that the dragged exposure has afterwards.
    int _frame;
};
