// SPDX-License-Identifier: MIT

#include "graphview/GV_ResizeCtrlQt.h"

#include <QMouseEvent>

namespace {

int changeOf(int distance, bool resizes, bool inverts)
{
    if (!resizes)
        return 0;
    return inverts ? -distance : distance;
}

} // namespace

GV_ResizeCtrlQt::GV_ResizeCtrlQt(QWidget* frame, const Directions& directions)
    : QWidget(frame)
    , _resizesVertically(directions.vertical)
    , _resizesHorizontally(directions.horizontal)
    , _invertsVertical(directions.invertsVertical)
    , _invertsHorizontal(directions.invertsHorizontal)
{
    // Plain widgets leave the background of a style sheet out.
    setAttribute(Qt::WA_StyledBackground);
}

void GV_ResizeCtrlQt::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    _dragging = true;
    _startSize = parentWidget()->size();
    _startPosition = event->globalPosition().toPoint();
}

void GV_ResizeCtrlQt::mouseMoveEvent(QMouseEvent* event)
{
    if (!_dragging)
        return;
    const QPoint distance = event->globalPosition().toPoint() - _startPosition;
    const int dx = changeOf(distance.x(), _resizesHorizontally, _invertsHorizontal);
    const int dy = changeOf(distance.y(), _resizesVertically, _invertsVertical);
    parentWidget()->resize(_startSize.width() + dx, _startSize.height() + dy);
}

void GV_ResizeCtrlQt::mouseReleaseEvent(QMouseEvent*)
{
    _dragging = false;
}
