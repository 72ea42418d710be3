// SPDX-License-Identifier: MIT
#include "workbench/timeline/TimelineView.h"

#include "workbench/timeline/SceneFrame.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

// The part of the view that takes the mouse.

namespace {

constexpr double zoomStep = 1.25;
constexpr double wheelNotch = 120;
constexpr int travelInterval = 40;
/// Frames travel by this share of how far the pointer is outside, each time.
constexpr double travelShare = 0.5;

using Part = TimelineLayout::Part;

} // namespace

Part TimelineView::partAt(const QPoint& pos) const
{
    const TimelineRows::Row* row = _rows.row(_layout.rowAt(pos.y()));
    if (!row || !_layout.frames().contains(pos))
        return Part::None;
    const int index = ExposureEdits::indexAt(row->exposures, _layout.frameAt(pos.x()));
    return index < 0 ? Part::None : _layout.partAt(pos.x(), row->exposures[index]);
}

void TimelineView::updateCursorShape(const QPoint& pos)
{
    const Part part = _drag ? _drag->part() : partAt(pos);
    const bool locked = !_drag && _commands.isLocked(_layout.rowAt(pos.y()));
    if (locked || part == Part::None)
        viewport()->unsetCursor();
    else if (part == Part::Middle)
        viewport()->setCursor(_drag ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    else
        viewport()->setCursor(Qt::SizeHorCursor);
}

void TimelineView::mousePressEvent(QMouseEvent* event)
{
    const QPoint pos = event->position().toPoint();
    if (_gesture != Gesture::None || _rows.count() == 0)
        return;
    _pressed = _pointer = pos;
    if (event->button() == Qt::LeftButton && _layout.ruler().contains(pos)) {
        _gesture = Gesture::Scrub;
        SceneFrame::goTo(_session, _layout.frameAt(pos.x()));
    } else if (_layout.rowAt(pos.y()) >= 0 && _layout.rowAt(pos.y()) < _rows.count() &&
               (event->button() == Qt::LeftButton || event->button() == Qt::RightButton)) {
        const bool left = event->button() == Qt::LeftButton;
        pressRow(pos, left && event->modifiers() & Qt::ControlModifier);
        if (left && partAt(pos) != Part::None && _cursor.selected())
            _gesture = Gesture::Press;
    }
}

void TimelineView::pressRow(const QPoint& pos, bool toggle)
{
    const int row = _layout.rowAt(pos.y());
    if (toggle) {
        _cursor.toggleRow(row);
        return;
    }
    _cursor.goToRow(row);
    if (_layout.frames().contains(pos))
        _cursor.selectAt(_layout.frameAt(pos.x()));
}

void TimelineView::mouseMoveEvent(QMouseEvent* event)
{
    _pointer = event->position().toPoint();
    if (_gesture == Gesture::Press &&
        (_pointer - _pressed).manhattanLength() >= QApplication::startDragDistance())
        beginDrag();
    if (_gesture == Gesture::Scrub || _gesture == Gesture::Drag) {
        travel(_pointer);
        continueDrag(_pointer);
    }
    updateCursorShape(_pointer);
}

void TimelineView::beginDrag()
{
    const int row = _cursor.row();
    if (_cursor.selected() && !_commands.isLocked(row)) {
        const int frame = _layout.frameAt(_pressed.x());
        _drag.emplace(row, _rows.row(row)->exposures, _cursor.exposure(), partAt(_pressed), frame);
        _gesture = Gesture::Drag;
    } else {
        sayLocked(row);
        _gesture = Gesture::None;
    }
}

void TimelineView::continueDrag(const QPoint& pos)
{
    const int frame = _layout.frameAt(pos.x());
    if (_drag)
        _drag->moveTo(frame);
    else if (_gesture == Gesture::Scrub)
        SceneFrame::goTo(_session, frame);
    viewport()->update();
}

void TimelineView::travel(const QPoint& pos)
{
    const QRect view = _layout.frames();
    if (pos.x() >= view.left() && pos.x() <= view.right())
        _travel.stop();
    else if (!_travel.isActive())
        _travel.start(travelInterval, this);
}

void TimelineView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != _travel.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    const QRect view = _layout.frames();
    const int outside = _pointer.x() - std::clamp(_pointer.x(), view.left(), view.right());
    const FrameAxis& axis = _layout.axis();
    scrollTo(axis.origin() + outside * travelShare / axis.pixelsPerFrame());
    continueDrag(_pointer);
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    endDrag();
    updateCursorShape(event->position().toPoint());
}

void TimelineView::endDrag()
{
    const std::optional<ExposureDrag> drag = std::exchange(_drag, std::nullopt);
    cancelDrag();
    if (!drag || drag->index() < 0)
        return;
    const QString name =
        drag->part() == Part::Middle ? ExposureCommands::moveName() : ExposureCommands::trimName();
    _commands.apply(drag->row(), drag->after(), name, drag->after()[drag->index()].firstFrame);
}

void TimelineView::cancelDrag()
{
    _travel.stop();
    _gesture = Gesture::None;
    _drag.reset();
    updateCursorShape(_pointer);
    viewport()->update();
}

void TimelineView::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    if (event->modifiers() & Qt::ControlModifier) {
        zoom(std::pow(zoomStep, turned.y() / wheelNotch), event->position().x());
        event->accept();
    } else if (event->modifiers() & Qt::ShiftModifier) {
        QScrollBar* bar = horizontalScrollBar();
        const double steps = turned.y() / wheelNotch * QApplication::wheelScrollLines();
        bar->setValue(bar->value() - static_cast<int>(std::round(steps * bar->singleStep())));
        event->accept();
    } else {
        QAbstractScrollArea::wheelEvent(event);
    }
}
