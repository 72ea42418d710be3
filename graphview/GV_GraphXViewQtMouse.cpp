// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/actions/AC_Manager.h"
#include "host/geometry/Box2.h"
#include "host/scene/SC_SessionContext.h"
#include "host/services/BUIAPP_Application.h"

#include <QContextMenuEvent>
#include <QGraphicsRectItem>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>

namespace {

constexpr int marqueePanInterval = 80;
constexpr double marqueePanStep = 12.0;

/// How far the pointer may move from where a tool tip came up before it goes, in pixels.
constexpr int toolTipReach = 99;

Math::Point2d toPoint(const QPoint& point)
{
    return {static_cast<double>(point.x()), static_cast<double>(point.y())};
}

/// The step in one direction towards a pointer that has left the view there.
double panStep(int position, int extent)
{
    if (position < 0)
        return -marqueePanStep;
    return position > extent ? marqueePanStep : 0.0;
}

} // namespace

bool GV_GraphXViewQt::isFreePanAndZoomKeyHeld() const
{
    const AC_Manager* manager = _sessionContext->actionManager();
    const int key = manager ? manager->shortcutKey(QStringLiteral("FREE_PAN_AND_ZOOM_KEY")) : 0;
    return key != 0 && BUIAPP_Application::isKeyPressed(key);
}

GV_GraphXViewQt::eMouseAction GV_GraphXViewQt::mouseAction() const
{
    return _mouseAction;
}

void GV_GraphXViewQt::mousePressEvent(QMouseEvent* event)
{
    setFocus(Qt::OtherFocusReason);
    const QPoint position = event->position().toPoint();
    if (event->button() == Qt::RightButton) {
        _openingContextMenu = true;
        QContextMenuEvent menuEvent(QContextMenuEvent::Mouse, position,
                                    event->globalPosition().toPoint(), event->modifiers());
        ContextMenuEvent(&menuEvent);
        update();
        return;
    }

    const bool othersHeld = _heldButtons != 0;
    _heldButtons |= static_cast<int>(event->button());
    _lastPosition = position;
    stampRefs(position.x(), position.y());
    const Math::Point2d pressed = screenToModel(toPoint(position));
    _pressPoint = {pressed.x, pressed.y};
    _marqueeStart = pressed;
    _marqueeEnd = pressed;
    // Nothing of a gesture that is given up may stay on the canvas.
    if (othersHeld)
        endMarquee();
    if (isFreePanAndZoomKeyHeld()) {
        _mouseAction = eMouseFreePanAndZoom;
        return;
    }
    if (othersHeld) {
        _mouseAction = eMouseNone;
        return;
    }
    _mouseAction = _controller->onMouseDown(_pressPoint);
    if (_mouseAction == eMouseNone)
        _mouseAction = eMouseMarquee;
    if (_mouseAction == eMouseMarquee)
        startMarquee();
}

void GV_GraphXViewQt::mouseDoubleClickEvent(QMouseEvent* event)
{
    // The second of two quick clicks is a click like any other.
    mousePressEvent(event);
}

void GV_GraphXViewQt::mouseMoveEvent(QMouseEvent* event)
{
    if (!_sessionContext->actionManager())
        return;
    const QPoint position = event->position().toPoint();
    if (isFreePanAndZoomKeyHeld()) {
        if (_heldButtons == Qt::LeftButton)
            handlePan(position);
        else if (_heldButtons == Qt::MiddleButton)
            handleZoom(position);
        refreshView();
    } else if (_mouseAction == eMouseMarquee && _heldButtons != 0) {
        if (handleMarquee(position))
            updateMatrix();
        else
            _marqueeItem->update();
    }
    _lastPosition = position;
}

void GV_GraphXViewQt::mouseReleaseEvent(QMouseEvent* event)
{
    _openingContextMenu = false;
    // Whichever button it was, the gesture is over.
    _heldButtons = 0;
    _lastPosition = event->position().toPoint();
    _anchor = {};
    const eMouseAction action = std::exchange(_mouseAction, eMouseNone);
    if (action != eMouseMarquee)
        return;
    _marqueeItem->hide();
    _controller->onMarqueeRelease();
    stopMarqueePanTimer();
}

void GV_GraphXViewQt::startMarquee()
{
    _marqueeItem->setRect(marqueeQRectF());
    _marqueeItem->show();
}

void GV_GraphXViewQt::endMarquee()
{
    _marqueeItem->hide();
    stopMarqueePanTimer();
}

bool GV_GraphXViewQt::handleMarquee(const QPoint& position)
{
    const bool panning = handleMarqueePan(position);
    _marqueeEnd = screenToModel(toPoint(position));
    _marqueeItem->setRect(marqueeQRectF());
    return panning;
}

bool GV_GraphXViewQt::handleMarqueePan(const QPoint& position)
{
    if (rect().contains(position)) {
        stopMarqueePanTimer();
        return false;
    }
    startMarqueePanTimer();
    // The content goes the other way, so that the view travels towards the pointer.
    _pan = _pan - marqueePanDisplacement();
    return true;
}

Math::Vector2d GV_GraphXViewQt::marqueePanDisplacement() const
{
    return {panStep(_lastPosition.x(), width()), panStep(_lastPosition.y(), height())};
}

QRectF GV_GraphXViewQt::marqueeQRectF() const
{
    const Math::Rect2d rect = marqueeRect();
    return QRectF(rect.left, rect.top, rect.width(), rect.height());
}

Math::Rect2d GV_GraphXViewQt::marqueeRect() const
{
    Math::Box2d box;
    box.AddClosed(_marqueeStart.x, _marqueeStart.y);
    box.AddClosed(_marqueeEnd.x, _marqueeEnd.y);
    return box.GetRect();
}

void GV_GraphXViewQt::startMarqueePanTimer()
{
    if (_marqueePanTimer == 0)
        _marqueePanTimer = startTimer(marqueePanInterval);
}

void GV_GraphXViewQt::stopMarqueePanTimer()
{
    if (_marqueePanTimer != 0)
        killTimer(std::exchange(_marqueePanTimer, 0));
}

void GV_GraphXViewQt::timerEvent(QTimerEvent* event)
{
    if (_marqueePanTimer == 0 || event->timerId() != _marqueePanTimer) {
        TUCanvasViewLayoutView::timerEvent(event);
        return;
    }
    handleMarquee(_lastPosition);
    updateMatrix();
}

bool GV_GraphXViewQt::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && _controller) {
        const auto* help = static_cast<const QHelpEvent*>(event);
        const Math::Point2d point = screenToModel(toPoint(viewport()->mapFrom(this, help->pos())));
        const QRect hotRect(help->pos(), help->pos() + QPoint(toolTipReach, toolTipReach));
        QToolTip::showText(help->globalPos(), _controller->fullNodeNameAtModelPoint(point), this,
                           hotRect);
    }
    return TUCanvasViewLayoutView::event(event);
}

void GV_GraphXViewQt::ContextMenuEvent(QContextMenuEvent* event)
{
    if (QMenu* popup = menu(ePopupMenu))
        popup->popup(event->globalPos());
}

void GV_GraphXViewQt::contextMenuEvent(QContextMenuEvent* event)
{
    // The press of the button has opened the menu already; a key has not.
    if (event->reason() != QContextMenuEvent::Mouse)
        ContextMenuEvent(event);
    event->accept();
}

void GV_GraphXViewQt::keyPressEvent(QKeyEvent* event)
{
    // The base class would scroll.
    event->ignore();
}
