// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "tests/graphview/MarqueeTest.h"

/// What dragging on the canvas does between the press and the release.
class tst_GV_GraphXViewQtGestures : public MarqueeTest
{
    Q_OBJECT

private slots:
    void the_release_hides_the_marquee_and_selects_what_it_touches()
    {
        press(empty);
        moveTo(header);
        QVERIFY(_stage->selectedNames().isEmpty());
        release(header);
        QCOMPARE(view().mouseAction(), View::eMouseNone);
        QVERIFY(!marquee()->isVisible());
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("robot")));
        moveTo(empty);
        QVERIFY(!marquee()->isVisible());
    }

    void a_press_on_a_box_selects_it_and_drags_nothing()
    {
        press(header);
        QCOMPARE(view().mouseAction(), View::eMouseHandled);
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("robot")));
        moveTo(empty);
        moveTo(QPoint(-30, -30));
        QVERIFY(!marquee()->isVisible());
        QVERIFY(!isMarqueePanning(view()));
        QVERIFY(isAtRest());
        release(empty);
        QCOMPARE(view().mouseAction(), View::eMouseNone);
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("robot")));
    }

    void a_second_button_ends_the_gesture()
    {
        dragOutside(QPoint(-5, 200));
        press(empty, Qt::MiddleButton);
        QCOMPARE(view().mouseAction(), View::eMouseNone);
        QVERIFY(!marquee()->isVisible());
        QVERIFY(!isMarqueePanning(view()));
        const Math::Point2d before = pan();
        moveTo(header);
        release(header);
        QCOMPARE(pan(), before);
        QVERIFY(_stage->selectedNames().isEmpty());
    }

    void a_release_lets_every_button_go()
    {
        press(empty);
        press(empty, Qt::MiddleButton);
        release(empty);
        press(empty);
        QCOMPARE(view().mouseAction(), View::eMouseMarquee);
        release(empty);
        // Nor is one of them left to drag with.
        holdPanKey();
        press(empty);
        press(empty, Qt::MiddleButton);
        release(empty);
        moveTo(empty + QPoint(30, 30));
        QVERIFY(isAtRest());
    }

    void a_double_click_counts_as_a_click()
    {
        press(empty);
        release(empty);
        send(view(), QEvent::MouseButtonDblClick, empty, Qt::LeftButton, Qt::LeftButton);
        QCOMPARE(view().mouseAction(), View::eMouseMarquee);
        moveTo(header);
        release(header);
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("robot")));
    }

    void with_the_key_held_the_left_button_pans()
    {
        holdPanKey();
        press(header);
        QCOMPARE(view().mouseAction(), View::eMouseFreePanAndZoom);
        QVERIFY(!marquee()->isVisible());
        moveTo(header + QPoint(40, -25));
        QCOMPARE(pan(), (Math::Point2d{42, -23}));
        moveTo(header + QPoint(-700, 500));
        QCOMPARE(pan(), (Math::Point2d{-698, 502}));
        QVERIFY(!isMarqueePanning(view()));
        moveTo(header);
        QCOMPARE(pan(), (Math::Point2d{2, 2}));
        release(header);
        moveTo(header + QPoint(40, -25));
        QVERIFY(isAtRest());
        QVERIFY(_stage->selectedNames().isEmpty());
    }

    void with_the_key_held_the_middle_button_zooms_about_the_press()
    {
        holdPanKey();
        press(empty, Qt::MiddleButton);
        QCOMPARE(view().mouseAction(), View::eMouseFreePanAndZoom);
        moveTo(empty + QPoint(9, 32));
        QCOMPARE(factor(), 2.0);
        QVERIFY(isNear(view().modelToScreen({448, 298}), empty.x(), empty.y()));
        moveTo(empty + QPoint(-70, -64));
        QCOMPARE(factor(), 0.25);
        QVERIFY(isNear(view().modelToScreen({448, 298}), empty.x(), empty.y()));
        moveTo(empty);
        QVERIFY(factor() == 1.0 && pan().x == 2.0 && pan().y == 2.0);
    }

    void coming_back_restores_a_zoom_that_had_met_its_limit()
    {
        holdPanKey();
        press(empty, Qt::MiddleButton);
        moveTo(empty + QPoint(0, 1000));
        QCOMPARE(factor(), 16.0);
        moveTo(empty + QPoint(0, -1000));
        QCOMPARE(factor(), 1.0 / 64);
        moveTo(empty + QPoint(100, 0));
        QVERIFY(factor() == 1.0 && pan().x == 2.0 && pan().y == 2.0);
    }

    void with_the_key_held_two_buttons_neither_pan_nor_zoom()
    {
        holdPanKey();
        press(empty);
        press(empty, Qt::MiddleButton);
        QCOMPARE(view().mouseAction(), View::eMouseFreePanAndZoom);
        moveTo(empty + QPoint(40, 32));
        QVERIFY(isAtRest());
    }

    void the_key_counts_at_every_move()
    {
        press(empty);
        moveTo(empty + QPoint(10, 10));
        holdPanKey();
        moveTo(empty + QPoint(15, 30));
        QCOMPARE(pan(), (Math::Point2d{7, 22}));
        QVERIFY(isMarqueeShownAt(QRectF(448, 298, 10, 10)));
        letPanKeyGo();
        moveTo(empty + QPoint(25, 40));
        QCOMPARE(pan(), (Math::Point2d{7, 22}));
        QVERIFY(isMarqueeShownAt(QRectF(448, 298, 20, 20)));
        release(empty);

        holdPanKey();
        press(empty);
        letPanKeyGo();
        moveTo(empty + QPoint(50, 50));
        QCOMPARE(pan(), (Math::Point2d{7, 22}));
        QVERIFY(!marquee()->isVisible());
    }

    void a_second_button_ends_the_marquee_with_the_key_held_too()
    {
        dragOutside(QPoint(-5, 200));
        holdPanKey();
        press(empty, Qt::MiddleButton);
        QCOMPARE(view().mouseAction(), View::eMouseFreePanAndZoom);
        QVERIFY(!marquee()->isVisible());
        QVERIFY(!isMarqueePanning(view()));
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtGestures)
#include "tst_GV_GraphXViewQtGestures.moc"
