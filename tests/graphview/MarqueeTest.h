// SPDX-License-Identifier: MIT
#pragma once

#include "tests/graphview/CanvasTest.h"

/// What tests of dragging on the canvas have in common: a shown view of one model at rest, and the
/// marquee.
class MarqueeTest : public CanvasTest
{
    Q_OBJECT

protected:
    /// On the canvas at rest: nothing, and the header of the first model.
    static constexpr QPoint empty{450, 300};
    static constexpr QPoint header{100, 14};

    using View = GV_GraphXViewQt;

    QGraphicsRectItem* marquee() { return marqueeItem(view()); }
    bool isMarqueeShownAt(const QRectF& rect)
    {
        return marquee()->isVisible() && marquee()->rect() == rect;
    }
    bool isAtRest() { return factor() == 1.0 && pan() == Math::Point2d{2, 2}; }
    /// Drags a marquee to the point, and once more so that the canvas has moved by one step.
    void dragOutside(const QPoint& to)
    {
        press(empty);
        moveTo(to);
        moveTo(to);
    }

protected slots:
    void init()
    {
        StageTest::init();
        QVERIFY(definePanKey());
        _stage->addElement(QStringLiteral("robot"));
        QVERIFY(show());
        QVERIFY(marquee());
        QVERIFY(!marquee()->isVisible());
    }
};
