// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXNavigatorQt.h"
#include "tests/graphview/StageTest.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QScrollBar>

/// What tests of the overview have in common: how the graph has to fit into it, and a mouse over
/// it.
class NavigatorTest : public StageTest
{
protected:
    GV_GraphXViewQt& view() { return _stage->view(); }
    GV_GraphXNavigatorQt& navigator() { return *view().navigator(); }
    QGraphicsRectItem* areaItem()
    {
        for (QGraphicsItem* item : navigator().scene()->items()) {
            if (auto* rect = qgraphicsitem_cast<QGraphicsRectItem*>(item))
                return rect;
        }
        return nullptr;
    }
    Math::Point2d pan() { return view().modelToScreen({0, 0}); }

    bool show(const QSize& size = QSize(500, 300))
    {
        view().resize(size);
        view().show();
        return QTest::qWaitForWindowExposed(&view());
    }
    /// What the view shows, in model units.
    QRectF visibleArea()
    {
        return QRectF(view().mapToScene(QPoint(0, 0)),
                      view().mapToScene(QPoint(view().width() - 1, view().height() - 1)));
    }
    /// The graph and the area as they fit into the navigator.
    QTransform fitted(const QRectF& area)
    {
        const QRectF all = navigator().mainItem()->sceneBoundingRect() | area;
        const int width = navigator().width();
        const int height = navigator().height();
        const float aspect = float(all.width() / all.height());
        const float ownAspect = float(width - 1) / float(height - 1);
        const double scale =
            float(aspect >= ownAspect ? (width - 1) / all.width() : (height - 1) / all.height());
        const QPointF center = all.center();
        return QTransform(scale, 0, 0, scale, width * 0.5 - center.x() * scale,
                          height * 0.5 - center.y() * scale);
    }

    void send(QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QWidget* target = navigator().viewport();
        QMouseEvent event(type, at, target->mapToGlobal(QPointF(at)), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &event);
    }
    void press(const QPoint& at)
    {
        send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    }
    void moveTo(const QPoint& at, Qt::MouseButtons held = Qt::LeftButton)
    {
        send(QEvent::MouseMove, at, Qt::NoButton, held);
    }
    void release(const QPoint& at)
    {
        send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    }
    bool scrollBarsAreAtRest()
    {
        return navigator().horizontalScrollBar()->value() == 0 &&
               navigator().verticalScrollBar()->value() == 0 &&
               view().horizontalScrollBar()->value() == 0 &&
               view().verticalScrollBar()->value() == 0;
    }

    static QString text(const QTransform& transform)
    {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(transform.m11(), 0, 'g', 17)
            .arg(transform.m22(), 0, 'g', 17)
            .arg(transform.dx(), 0, 'g', 17)
            .arg(transform.dy(), 0, 'g', 17);
    }
};
