// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "tests/graphview/MarqueeTest.h"

/// The marquee, and the canvas that follows it when it is dragged out of the view.
class tst_GV_GraphXViewQtMarquee : public MarqueeTest
{
    Q_OBJECT

private slots:
    void a_press_on_nothing_starts_an_empty_marquee()
    {
        press(empty);
        QCOMPARE(view().mouseAction(), View::eMouseMarquee);
        QVERIFY(isMarqueeShownAt(QRectF(448, 298, 0, 0)));
        QCOMPARE(view().marqueeRect(), (Math::Rect2d{448, 298, 448, 298}));
        QVERIFY(view().hasFocus());
    }

    void a_marquee_grows_in_every_direction()
    {
        press(empty);
        moveTo(QPoint(500, 320));
        QVERIFY(isMarqueeShownAt(QRectF(448, 298, 50, 20)));
        moveTo(QPoint(10, 320));
        QVERIFY(isMarqueeShownAt(QRectF(8, 298, 440, 20)));
        moveTo(QPoint(10, 5));
        QVERIFY(isMarqueeShownAt(QRectF(8, 3, 440, 295)));
        QCOMPARE(view().marqueeRect(), (Math::Rect2d{8, 3, 448, 298}));
        QVERIFY(isAtRest());
        QVERIFY(!isMarqueePanning(view()));
    }

    void a_marquee_is_measured_in_model_units()
    {
        dragZoom(QPoint(2, 2), 32);
        QCOMPARE(factor(), 2.0);
        press(QPoint(302, 202));
        moveTo(QPoint(402, 302));
        QVERIFY(isMarqueeShownAt(QRectF(150, 100, 50, 50)));
    }

    void a_release_without_a_move_still_ends_a_marquee()
    {
        press(empty);
        release(empty);
        QVERIFY(!marquee()->isVisible());
        QCOMPARE(view().mouseAction(), View::eMouseNone);
    }

    void a_marquee_that_was_never_moved_selects_what_has_come_under_it()
    {
        const QPoint secondHeader(260, 14);
        press(secondHeader);
        QCOMPARE(view().mouseAction(), View::eMouseMarquee);
        _stage->addElement(QStringLiteral("second"));
        release(secondHeader);
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("second")));
    }

    void outside_the_view_every_move_scrolls_towards_the_pointer_data()
    {
        QTest::addColumn<QPoint>("outside");
        QTest::addColumn<QPoint>("step");
        QTest::newRow("left") << QPoint(-1, 200) << QPoint(12, 0);
        QTest::newRow("right") << QPoint(601, 200) << QPoint(-12, 0);
        QTest::newRow("above") << QPoint(300, -1) << QPoint(0, 12);
        QTest::newRow("below") << QPoint(300, 401) << QPoint(0, -12);
        QTest::newRow("corner") << QPoint(-300, 900) << QPoint(12, -12);
        QTest::newRow("other corner") << QPoint(900, -300) << QPoint(-12, 12);
    }
    void outside_the_view_every_move_scrolls_towards_the_pointer()
    {
        QFETCH(const QPoint, outside);
        QFETCH(const QPoint, step);
        press(empty);
        moveTo(outside);
        // The pointer was inside until now.
        QVERIFY(isAtRest());
        QVERIFY(isMarqueePanning(view()));
        for (int i = 1; i <= 5; ++i) {
            moveTo(outside);
            QCOMPARE(pan(), (Math::Point2d{2.0 + i * step.x(), 2.0 + i * step.y()}));
            QCOMPARE(view().transform(), QTransform::fromTranslate(pan().x, pan().y));
            const Math::Point2d end =
                view().screenToModel({double(outside.x()), double(outside.y())});
            QCOMPARE(marquee()->rect(),
                     QRectF(QPointF(448, 298), QPointF(end.x, end.y)).normalized());
        }
    }

    void on_the_far_edge_the_canvas_does_not_move_yet()
    {
        press(empty);
        for (int i = 0; i < 3; ++i)
            moveTo(QPoint(600, 400));
        QVERIFY(isAtRest());
        QVERIFY(isMarqueePanning(view()));
        moveTo(QPoint(599, 399));
        QVERIFY(!isMarqueePanning(view()));
    }

    void outside_the_view_the_canvas_goes_on_scrolling_by_itself()
    {
        press(empty);
        moveTo(QPoint(-5, 405));
        QVERIFY(isAtRest());
        QTRY_VERIFY(pan().x >= 2 + 3 * 12);
        const Math::Point2d after = pan();
        QCOMPARE(std::fmod(after.x - 2, 12.0), 0.0);
        QCOMPARE(after.y - 2, -(after.x - 2));
        // The marquee goes along with it.
        const Math::Point2d end = view().screenToModel({-5, 405});
        QCOMPARE(view().marqueeRect(), (Math::Rect2d{end.x, 298, 448, end.y}));
        QCOMPARE(view().transform(), QTransform::fromTranslate(after.x, after.y));
        QTRY_VERIFY(pan().x > after.x);
    }

    void back_inside_the_canvas_stops_at_once()
    {
        dragOutside(QPoint(-5, 200));
        QVERIFY(isMarqueePanning(view()));
        moveTo(QPoint(0, 200));
        QVERIFY(!isMarqueePanning(view()));
        QCOMPARE(pan(), (Math::Point2d{14, 2}));
        moveTo(QPoint(20, 200));
        QCOMPARE(pan(), (Math::Point2d{14, 2}));
        QVERIFY(isMarqueeShownAt(QRectF(6, 198, 442, 100)));
    }

    void the_release_outside_stops_the_canvas()
    {
        dragOutside(QPoint(-5, 200));
        release(QPoint(-5, 200));
        QVERIFY(!isMarqueePanning(view()));
        QVERIFY(!marquee()->isVisible());
        QCOMPARE(pan(), (Math::Point2d{14, 2}));
    }

    void an_element_may_go_while_a_marquee_is_over_it()
    {
        MO_ElementModule& second = _stage->addElement(QStringLiteral("second"));
        _stage->select({&second});
        press(empty);
        moveTo(header);
        _stage->remove(second);
        QCOMPARE(_stage->headers(), QStringList(QStringLiteral("robot")));
        moveTo(header + QPoint(-20, 0));
        QVERIFY(isMarqueeShownAt(QRectF(78, 12, 370, 286)));
        release(header);
        QVERIFY(!marquee()->isVisible());
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("robot")));
    }

    void a_view_may_go_while_its_canvas_scrolls()
    {
        std::unique_ptr<View> doomed = _stage->newView();
        doomed->onActionShowHideWorldView();
        doomed->resize(600, 400);
        doomed->show();
        QVERIFY(QTest::qWaitForWindowExposed(doomed.get()));
        send(*doomed, QEvent::MouseButtonPress, empty, Qt::LeftButton, Qt::LeftButton);
        send(*doomed, QEvent::MouseMove, QPoint(-5, 200), Qt::NoButton, Qt::LeftButton);
        QVERIFY(isMarqueePanning(*doomed));
        QTRY_VERIFY(doomed->modelToScreen({0, 0}).x > 2);
        doomed.reset();
        // The other view goes on; the time it takes is more than a step of the one that is gone.
        dragOutside(QPoint(-5, 200));
        QTRY_VERIFY(pan().x >= 2 + 3 * 12);
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtMarquee)
#include "tst_GV_GraphXViewQtMarquee.moc"
