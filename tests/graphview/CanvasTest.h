// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_Manager.h"
#include "host/layout/TULayoutView.h"
#include "host/scene/SC_SessionContext.h"
#include "tests/graphview/StageTest.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

/// Whether two positions on the canvas are the same but for rounding.
inline bool isNear(double a, double b)
{
    return std::abs(a - b) <= 1e-9 * std::max({1.0, std::abs(a), std::abs(b)});
}

inline bool isNear(const Math::Point2d& point, double x, double y)
{
    return isNear(point.x, x) && isNear(point.y, y);
}

/// What tests of the canvas of a shown panel have in common: a mouse over it, and its zoom and pan.
/// Mouse positions are pixels of the canvas. Whatever an event does, it has done when the call
/// returns, except for what timers do.
class CanvasTest : public StageTest
{
protected:
    GV_GraphXViewQt& view() { return _stage->view(); }

    /// Shows the panel without the overview, which would cover a part of the canvas.
    bool show(const QSize& size = QSize(600, 400))
    {
        view().onActionShowHideWorldView();
        view().move(100, 100);
        view().resize(size);
        view().show();
        view().activateWindow();
        return QTest::qWaitForWindowExposed(&view()) && QTest::qWaitForWindowActive(&view());
    }

    Math::Point2d pan() { return view().modelToScreen({0.0, 0.0}); }
    double factor() { return view().transform().m11(); }

    static void send(GV_GraphXViewQt& view, QEvent::Type type, const QPoint& position,
                     Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, position, view.viewport()->mapToGlobal(QPointF(position)), button,
                          held, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &event);
    }
    void press(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        send(view(), QEvent::MouseButtonPress, position, button, button);
    }
    void moveTo(const QPoint& position)
    {
        send(view(), QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
    }
    void release(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        send(view(), QEvent::MouseButtonRelease, position, button, Qt::NoButton);
    }
    void turnWheel(const QPoint& position, int delta)
    {
        QWheelEvent event(position, view().viewport()->mapToGlobal(QPointF(position)), QPoint(),
                          QPoint(0, delta), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view().viewport(), &event);
    }

    /// Gives the action manager the key that drags pan and zoom with.
    bool definePanKey()
    {
        return _stage->context().actionManager()->loadDefinitions(
            "<definitions><shortcut id='FREE_PAN_AND_ZOOM_KEY' key='Space'/></definitions>");
    }
    void holdPanKey() { QTest::keyPress(&view(), Qt::Key_Space); }
    void letPanKeyGo() { QTest::keyRelease(&view(), Qt::Key_Space); }
    /// Drags with the key held, from before the press until after the release.
    void dragZoom(const QPoint& from, int pixels)
    {
        drag(from, from + QPoint(3, pixels), Qt::MiddleButton);
    }
    void dragPan(const QPoint& from, const QPoint& to) { drag(from, to, Qt::LeftButton); }

    /// The rectangle that is dragged up on the canvas.
    static QGraphicsRectItem* marqueeItem(GV_GraphXViewQt& view)
    {
        for (QGraphicsItem* item : view.scene()->items()) {
            if (auto* rect = qgraphicsitem_cast<QGraphicsRectItem*>(item))
                return rect;
        }
        return nullptr;
    }

    /// Whether the canvas moves by itself at the moment.
    static bool isMarqueePanning(GV_GraphXViewQt& view)
    {
        constexpr int interval = 80;
        return std::ranges::any_of(QAbstractEventDispatcher::instance()->registeredTimers(&view),
                                   [](const QAbstractEventDispatcher::TimerInfo& timer) {
                                       return timer.interval == interval;
                                   });
    }

private:
    void drag(const QPoint& from, const QPoint& to, Qt::MouseButton button)
    {
        holdPanKey();
        press(from, button);
        moveTo(to);
        release(to, button);
        letPanKeyGo();
    }
};
