// SPDX-License-Identifier: MIT
#include "workbench/timeline/ExposureDrag.h"

#include <algorithm>

ExposureDrag::ExposureDrag(int row, Exposures before, int index, TimelineLayout::Part part,
                           int frame)
    : _row(row)
    , _before(std::move(before))
    , _after(_before)
    , _index(index)
    , _part(part)
    , _pressed(frame)
    , _frame(_before[index].firstFrame)
{
}

int ExposureDrag::index() const
{
    return ExposureEdits::indexAt(_after, _frame);
}

void ExposureDrag::moveTo(int frame)
{
    const ExposureEdits::Exposure& dragged = _before[_index];
    // Frames count from 1, so the difference of two of them cannot overflow.
    const int frames = frame - _pressed;
    const auto from = [frames](int end) {
        return static_cast<int>(
            std::clamp<long long>(static_cast<long long>(end) + frames, 1, ExposureEdits::openEnd));
    };
    switch (_part) {
    case TimelineLayout::Part::First:
        _after = ExposureEdits::withFirst(_before, _index, from(std::max(1, dragged.firstFrame)));
        _frame = dragged.lastFrame;
        break;
    case TimelineLayout::Part::Last:
        _after = ExposureEdits::withLast(
            _before, _index, ExposureEdits::isOpen(dragged) ? frame : from(dragged.lastFrame));
        _frame = dragged.firstFrame;
        break;
    default:
        _after = ExposureEdits::moved(_before, _index, frames);
        _frame = dragged.firstFrame + ExposureEdits::reach(dragged, frames);
    }
}
