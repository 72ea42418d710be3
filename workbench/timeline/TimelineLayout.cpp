// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineLayout.h"

#include <QFontMetrics>
#include <algorithm>

namespace {

constexpr int rowPadding = 8;
constexpr int rulerPadding = 10;
constexpr int barInset = 2;
/// Letters that fit into a name before it is cut.
constexpr int nameLetters = 18;
/// Bars end this far out of view, where neither border nor corner shows.
constexpr double outside = 16;
/// How near to an end of a bar the end is taken, at most, and the share of a narrow bar.
constexpr double grip = 6;
constexpr double gripShare = 0.25;

} // namespace

QRect TimelineLayout::ruler() const
{
    return {_namesWidth, 0, std::max(0, _size.width() - _namesWidth), _rulerHeight};
}

QRect TimelineLayout::names() const
{
    return {0, _rulerHeight, _namesWidth, std::max(0, _size.height() - _rulerHeight)};
}

QRect TimelineLayout::frames() const
{
    return {_namesWidth, _rulerHeight, ruler().width(), names().height()};
}

QRect TimelineLayout::rowRect(int row) const
{
    return {0, _rulerHeight + row * _rowHeight - _top, _size.width(), _rowHeight};
}

int TimelineLayout::rowAt(int y) const
{
    const int below = y - _rulerHeight + _top;
    return below < 0 ? -1 : below / _rowHeight;
}

QRectF TimelineLayout::barRect(int row, const ExposureEdits::Exposure& exposure) const
{
    const QRectF view = frames();
    const double left = std::max(xOf(exposure.firstFrame), view.left() - outside);
    const double right =
        std::min(xOf(exposure.lastFrame + 1.0), view.left() + view.width() + outside);
    if (left >= view.left() + view.width() || right <= view.left())
        return {};
    const QRect area = rowRect(row);
    return {left, static_cast<double>(area.top() + barInset), right - left,
            static_cast<double>(_rowHeight - 2 * barInset)};
}

TimelineLayout::Part TimelineLayout::partAt(int x, const ExposureEdits::Exposure& exposure) const
{
    const QRect view = frames();
    const double first = xOf(exposure.firstFrame);
    const double last = ExposureEdits::isOpen(exposure) ? view.left() + view.width()
                                                        : xOf(exposure.lastFrame + 1.0);
    if (!view.contains(x, view.top()) || x < first || x >= last)
        return Part::None;
    const double reach = std::min(grip, (last - first) * gripShare);
    if (x < first + reach)
        return Part::First;
    return x >= last - reach ? Part::Last : Part::Middle;
}

void TimelineLayout::fit(const QSize& size, const QFontMetrics& metrics)
{
    _size = size;
    _rowHeight = metrics.height() + rowPadding;
    _rulerHeight = metrics.height() + rulerPadding;
    _namesWidth = std::min(metrics.averageCharWidth() * nameLetters, size.width() / 3);
}
