// SPDX-License-Identifier: MIT

#include "tests/graphview/NavigatorTest.h"

#include <QWheelEvent>
#include <QWindow>

namespace {

constexpr double farthestPan = 7812500.0;

} // namespace

/// What mouse and keys do over the overview.
class tst_GV_GraphXNavigatorQtDrag : public NavigatorTest
{
    Q_OBJECT

private slots:
    void a_drag_takes_the_visible_area_along()
    {
        addSelected(ModelBuilder::randomModel(6, 150));
        QVERIFY(show());
        view().onActionZoomIn();
        const double zoom = view().transform().m11();
        QPoint last(40, 40);
        press(last);
        for (const QPoint next : {QPoint(43, 40), QPoint(43, 47), QPoint(20, 10), QPoint(90, 88)}) {
            const Math::Point2d before = pan();
            const double scale = navigator().transform().m11();
            moveTo(next);
            const Math::Point2d expected{before.x + zoom * ((last.x() - next.x()) / scale),
                                         before.y + zoom * ((last.y() - next.y()) / scale)};
            QCOMPARE(pan().x, expected.x);
            QCOMPARE(pan().y, expected.y);
            last = next;
        }
        release(last);
        QVERIFY(scrollBarsAreAtRest());
    }

    void a_drag_moves_the_outline_with_the_pointer()
    {
        addSelected(ModelBuilder::chain(400));
        QVERIFY(show());
        // With the area inside the graph the fit stays, and pixels are pixels.
        view().handleNavigatorPan({-50, -3000});
        const QTransform fit = navigator().transform();
        const QRectF before = fit.mapRect(areaItem()->rect());
        press(QPoint(30, 30));
        moveTo(QPoint(34, 41));
        release(QPoint(34, 41));
        QVERIFY(navigator().transform() == fit);
        const QRectF moved = fit.mapRect(areaItem()->rect()).translated(-4, -11);
        QVERIFY(std::abs(moved.x() - before.x()) < 0.01 && std::abs(moved.y() - before.y()) < 0.01);
    }

    void moves_without_the_left_button_only_bring_the_pointer_along()
    {
        addSelected(ModelBuilder::randomModel(6, 150));
        QVERIFY(show());
        press(QPoint(10, 10));
        release(QPoint(10, 10));
        const Math::Point2d before = pan();
        moveTo(QPoint(30, 30), Qt::NoButton);
        moveTo(QPoint(50, 20), Qt::RightButton);
        moveTo(QPoint(60, 60), Qt::MiddleButton);
        QCOMPARE(pan(), before);
        const double scale = navigator().transform().m11();
        moveTo(QPoint(61, 58), Qt::LeftButton | Qt::RightButton);
        QCOMPARE(pan().x, before.x - 1 / scale);
        QCOMPARE(pan().y, before.y + 2 / scale);
    }

    void drags_end_at_the_farthest_pan()
    {
        addSelected(robotModel());
        QVERIFY(show());
        for (const QPoint end : {QPoint(85, 85), QPoint(5, 5), QPoint(85, 5)}) {
            const double x = end.x() > 50 ? -farthestPan : farthestPan;
            const double y = end.y() > 50 ? -farthestPan : farthestPan;
            for (int i = 0; i < 200 && (pan().x != x || pan().y != y); ++i) {
                press(QPoint(45, 45));
                moveTo(end);
                release(end);
                QVERIFY(std::abs(pan().x) <= farthestPan && std::abs(pan().y) <= farthestPan);
            }
            QCOMPARE(pan(), (Math::Point2d{x, y}));
            QVERIFY(navigator().transform() == fitted(visibleArea()));
            QVERIFY(scrollBarsAreAtRest());
        }
        view().handleNavigatorPan({1e15, -1e15});
        QCOMPARE(pan(), (Math::Point2d{farthestPan, -farthestPan}));
        QVERIFY(scrollBarsAreAtRest());
    }

    void neither_wheel_nor_clicks_nor_double_clicks_move_anything()
    {
        addSelected(ModelBuilder::randomModel(6, 150));
        QVERIFY(show());
        const QTransform own = navigator().transform();
        const QTransform main = view().transform();
        const QStringList selected = _stage->selectedNames();
        for (const QPoint delta : {QPoint(0, 120), QPoint(0, -960), QPoint(480, 0)}) {
            QWheelEvent event(QPointF(30, 30), navigator().viewport()->mapToGlobal(QPointF(30, 30)),
                              QPoint(), delta, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                              false);
            QCoreApplication::sendEvent(navigator().viewport(), &event);
            QVERIFY(event.isAccepted());
        }
        QTest::mouseClick(navigator().viewport(), Qt::LeftButton, {}, QPoint(12, 60));
        QTest::mouseDClick(navigator().viewport(), Qt::LeftButton, {}, QPoint(70, 20));
        QTest::mouseClick(navigator().viewport(), Qt::RightButton, {}, QPoint(40, 40));
        QVERIFY(navigator().transform() == own);
        QVERIFY(view().transform() == main);
        QCOMPARE(_stage->selectedNames(), selected);
        QVERIFY(scrollBarsAreAtRest());
    }

    void a_drag_may_start_with_a_double_click()
    {
        addSelected(ModelBuilder::randomModel(6, 150));
        QVERIFY(show());
        press(QPoint(10, 10));
        release(QPoint(10, 10));
        send(QEvent::MouseButtonDblClick, QPoint(50, 50), Qt::LeftButton, Qt::LeftButton);
        const Math::Point2d before = pan();
        const double scale = navigator().transform().m11();
        moveTo(QPoint(53, 50));
        QCOMPARE(pan().x, before.x - 3 / scale);
        QCOMPARE(pan().y, before.y);
    }

    void keys_stay_with_the_view_after_a_drag()
    {
        addSelected(robotModel());
        QVERIFY(show());
        view().activateWindow();
        view().setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&view()));
        QTest::mouseClick(navigator().viewport(), Qt::LeftButton, {}, QPoint(40, 40));
        QVERIFY(view().hasFocus());
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_PageDown, Qt::Key_End})
            QTest::keyClick(view().windowHandle(), key);
        QVERIFY(scrollBarsAreAtRest());
    }
};

QTEST_MAIN(tst_GV_GraphXNavigatorQtDrag)
#include "tst_GV_GraphXNavigatorQtDrag.moc"
