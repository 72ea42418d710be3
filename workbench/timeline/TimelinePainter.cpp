// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelinePainter.h"

#include "workbench/timeline/ExposureDrag.h"
#include "workbench/timeline/TimelineLayout.h"

#include <QLinearGradient>
#include <QPainter>
#include <QtMath>
#include <algorithm>

namespace {

constexpr double corner = 3;
constexpr int textGap = 5;
/// An open end fades over this many pixels.
constexpr double fade = 48;
/// Room for the numbers of the ruler beyond their own width.
constexpr int labelGap = 16;
/// Single frames are told apart by lines from this many pixels on.
constexpr double gridFrom = 5;
/// Bars narrower than this have no border, and do not leave a gap to the next.
constexpr double bordered = 3;
constexpr double markerHead = 6;

QColor mixed(const QColor& under, const QColor& over, double share)
{
    const auto part = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return {part(under.red(), over.red()), part(under.green(), over.green()),
            part(under.blue(), over.blue())};
}

} // namespace

TimelinePainter::TimelinePainter(QPainter& painter, const State& state)
    : _painter(painter)
    , _state(state)
    , _layout(state.layout)
{
}

QColor TimelinePainter::shade(double share) const
{
    return mixed(_state.palette.color(QPalette::Base), _state.palette.color(QPalette::Text), share);
}

void TimelinePainter::paint()
{
    paintRows();
    paintGrid();
    const QRect frames = _layout.frames();
    const int last = std::min(_state.rows.count() - 1, _layout.rowAt(frames.bottom()));
    _painter.save();
    _painter.setClipRect(frames);
    for (int row = std::max(0, _layout.rowAt(frames.top())); row <= last; ++row)
        paintBars(row);
    _painter.restore();
    paintRuler();
    paintMarker();
    if (_state.focused)
        paintFocus();
}

void TimelinePainter::paintRows()
{
    const QRect names = _layout.names();
    const int last = std::min(_state.rows.count() - 1, _layout.rowAt(names.bottom()));
    _painter.save();
    _painter.setClipRect(names.united(_layout.frames()));
    for (int row = std::max(0, _layout.rowAt(names.top())); row <= last; ++row) {
        const QRect area = _layout.rowRect(row);
        _painter.fillRect(area,
                          _state.palette.color(row % 2 ? QPalette::AlternateBase : QPalette::Base));
        paintName(row, QRect(area.left(), area.top(), names.width(), area.height()));
    }
    _painter.fillRect(names.right(), names.top(), 1, names.height(), shade(0.3));
    _painter.restore();
}

void TimelinePainter::paintName(int row, const QRect& area)
{
    const MO_ElementModule* element = _state.rows.element(row);
    if (!element)
        return;
    const bool selected = element->selected();
    if (selected)
        _painter.fillRect(area, _state.palette.color(QPalette::Highlight));
    const QColor text = _state.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    if (row == _state.currentRow && _state.focused) {
        _painter.setPen(QPen(text, 1, Qt::DotLine));
        _painter.setBrush(Qt::NoBrush);
        _painter.drawRect(area.adjusted(2, 1, -4, -2));
    }
    QFont font = _painter.font();
    font.setItalic(!element->isEditable());
    _painter.save();
    _painter.setFont(font);
    _painter.setPen(text);
    const QRect room = area.adjusted(textGap, 0, -textGap, 0);
    const QString name = _painter.fontMetrics().elidedText(_state.rows.row(row)->name,
                                                           Qt::ElideMiddle, room.width());
    _painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, name);
    _painter.restore();
}

void TimelinePainter::paintBars(int row)
{
    const bool dragged = _state.drag && _state.drag->row() == row;
    const ExposureEdits::Exposures& all =
        dragged ? _state.drag->after() : _state.rows.row(row)->exposures;
    const int selected = dragged                    ? _state.drag->index()
                         : row == _state.currentRow ? _state.selectedExposure
                                                    : -1;
    const QRect view = _layout.frames();
    const int right = _layout.frameAt(view.right());
    int index = ExposureEdits::firstReaching(all, _layout.frameAt(view.left()));
    while (index < static_cast<int>(all.size()) && all[index].firstFrame <= right) {
        paintBar(row, all[index], index == selected);
        // What ends on the pixel that was just painted would not be seen.
        const double end = _layout.xOf(all[index].lastFrame + 1.0);
        const int next = _layout.axis().frameAt(end + 1 - view.left());
        index = std::max(index + 1, ExposureEdits::firstReaching(all, next));
    }
    // It must not be left out when others share its pixel.
    if (selected >= 0)
        paintBar(row, all[selected], true);
}

void TimelinePainter::paintBar(int row, const ExposureEdits::Exposure& exposure, bool selected)
{
    const QRectF bar = _layout.barRect(row, exposure);
    if (bar.isEmpty())
        return;
    const MO_ElementModule* element = _state.rows.element(row);
    const bool locked = element && !element->isEditable();
    const QColor base = _state.palette.color(QPalette::Base);
    const QColor strong = locked ? shade(0.5) : _state.palette.color(QPalette::Highlight);
    const QColor fill = selected ? strong : mixed(base, strong, locked ? 0.25 : 0.4);
    const QColor border =
        selected ? _state.palette.color(QPalette::Text) : mixed(base, strong, 0.9);
    if (bar.width() < bordered) {
        _painter.fillRect(QRectF(bar.left(), bar.top(), std::max(1.0, bar.width()), bar.height()),
                          selected ? border : mixed(base, strong, 0.6));
        return;
    }
    QBrush fillBrush(fill);
    QBrush borderBrush(border);
    if (ExposureEdits::isOpen(exposure)) {
        const double end = _layout.frames().right() + 1;
        const double begin = std::max(bar.left(), end - fade);
        const auto fading = [&](const QColor& colour) {
            QLinearGradient gradient(begin, 0, end, 0);
            QColor none = colour;
            none.setAlpha(0);
            gradient.setColorAt(0, colour);
            gradient.setColorAt(1, none);
            return QBrush(gradient);
        };
        fillBrush = fading(fill);
        borderBrush = fading(border);
    }
    _painter.save();
    _painter.setRenderHint(QPainter::Antialiasing);
    _painter.setPen(QPen(borderBrush, selected ? 2 : 1));
    _painter.setBrush(fillBrush);
    _painter.drawRoundedRect(bar.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    _painter.restore();
    paintTitle(
        row, exposure, bar,
        _state.palette.color(selected && !locked ? QPalette::HighlightedText : QPalette::Text));
}

void TimelinePainter::paintTitle(int row, const ExposureEdits::Exposure& exposure,
                                 const QRectF& bar, const QColor& colour)
{
    // The title stays in view while its bar is scrolled out at the left.
    const QRectF room = bar.intersected(_layout.frames()).adjusted(textGap, 0, -textGap, 0);
    const QFontMetrics metrics = _painter.fontMetrics();
    if (room.width() < 2 * metrics.averageCharWidth())
        return;
    const QString title = _state.models.titleOf(exposure.model, *_state.rows.row(row));
    _painter.setPen(colour);
    _painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      metrics.elidedText(title, Qt::ElideRight, static_cast<int>(room.width())));
}

void TimelinePainter::paintGrid()
{
    const QRect view = _layout.frames();
    const qint64 step = _layout.axis().labelDistance(
        _painter.fontMetrics().horizontalAdvance(QString::number(_layout.frameAt(view.right()))) +
        labelGap);
    const bool single = _layout.axis().pixelsPerFrame() >= gridFrom;
    const qint64 last = _layout.frameAt(view.right());
    _painter.save();
    _painter.setClipRect(view);
    for (qint64 frame = _layout.frameAt(view.left()) / (single ? 1 : step) * (single ? 1 : step);
         frame <= last; frame += single ? 1 : step) {
        const double x = _layout.xOf(static_cast<double>(frame));
        _painter.fillRect(QRectF(x, view.top(), 1, view.height()),
                          shade(frame % step == 0 ? 0.16 : 0.06));
    }
    _painter.restore();
}

void TimelinePainter::paintRuler()
{
    const QRect ruler = _layout.ruler();
    const QRect whole(0, ruler.top(), ruler.right() + 1, ruler.height());
    const QColor text = _state.palette.color(QPalette::WindowText);
    const QColor window = _state.palette.color(QPalette::Window);
    _painter.fillRect(whole, window);
    _painter.fillRect(whole.left(), whole.bottom(), whole.width(), 1, mixed(window, text, 0.35));
    const qint64 last = _layout.frameAt(ruler.right());
    const qint64 step = _layout.axis().labelDistance(
        _painter.fontMetrics().horizontalAdvance(QString::number(last)) + labelGap);
    _painter.save();
    _painter.setClipRect(ruler);
    _painter.setPen(text);
    const int frameWidth = qCeil(_layout.axis().pixelsPerFrame());
    for (qint64 frame = _layout.frameAt(ruler.left()) / step * step; frame <= last; frame += step) {
        // Frames count from 1, which is labelled in place of the 0 that would be round.
        const qint64 shown = std::max<qint64>(1, frame);
        const int x = qFloor(_layout.xOf(static_cast<double>(shown)));
        _painter.fillRect(x, ruler.bottom() - 5, 1, 5, mixed(window, text, 0.6));
        if (frame == 0 && step <= 2)
            continue;
        const QRect label(x + 3, ruler.top(), std::max(frameWidth, ruler.width()),
                          ruler.height() - 4);
        _painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter, QString::number(shown));
    }
    _painter.restore();
}

void TimelinePainter::paintMarker()
{
    const QRect ruler = _layout.ruler();
    const double width = _layout.axis().pixelsPerFrame();
    const double left = _layout.xOf(_state.currentFrame);
    if (left + width < ruler.left() - markerHead || left > ruler.right() + markerHead)
        return;
    const QRect view = ruler.united(_layout.frames());
    _painter.save();
    _painter.setClipRect(view);
    const QColor colour = _state.palette.color(QPalette::Text);
    QColor veil = colour;
    veil.setAlphaF(0.1F);
    _painter.fillRect(QRectF(left, ruler.bottom() + 1, width, view.height()), veil);
    const double middle = left + width / 2;
    _painter.fillRect(QRectF(middle - 0.5, ruler.bottom() + 1, 1, view.height()), colour);
    _painter.setRenderHint(QPainter::Antialiasing);
    _painter.setPen(Qt::NoPen);
    _painter.setBrush(colour);
    _painter.drawPolygon(QPolygonF({QPointF(middle - markerHead, ruler.bottom() - markerHead),
                                    QPointF(middle + markerHead, ruler.bottom() - markerHead),
                                    QPointF(middle, ruler.bottom() + 1.0)}));
    _painter.restore();
}

void TimelinePainter::paintFocus()
{
    const QRect whole = _layout.names().united(_layout.ruler()).united(_layout.frames());
    _painter.setPen(_state.palette.color(QPalette::Highlight));
    _painter.setBrush(Qt::NoBrush);
    _painter.drawRect(whole.adjusted(0, 0, -1, -1));
    _painter.drawRect(whole.adjusted(1, 1, -2, -2));
}
