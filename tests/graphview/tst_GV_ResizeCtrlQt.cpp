// SPDX-License-Identifier: MIT

#include "graphview/GV_ResizeCtrlQt.h"

#include "graphview/GV_GraphXNavigatorQt.h"
#include "tests/graphview/WorldViewTest.h"

#include <QWindow>

Q_DECLARE_METATYPE(GV_WorldViewQt::eGrip)

/// The grips of the frame, dragged as the user does.
class tst_GV_ResizeCtrlQt : public WorldViewTest
{
    Q_OBJECT

private:
    /// Drags from the middle of a grip, in the window of the view as the user does.
    void drag(Grip which, const std::vector<QPoint>& distances,
              Qt::MouseButton button = Qt::LeftButton)
    {
        const GV_ResizeCtrlQt* grip = frame().grip(which);
        const QPoint start = grip->mapTo(&view(), grip->rect().center());
        QWindow* window = view().windowHandle();
        QTest::mousePress(window, button, {}, start);
        for (const QPoint& distance : distances)
            QTest::mouseMove(window, start + distance);
        QTest::mouseRelease(window, button, {}, start + distances.back());
    }

private slots:
    void grips_resize_away_from_the_corner_data()
    {
        QTest::addColumn<int>("corner");
        QTest::addColumn<GV_WorldViewQt::eGrip>("grip");
        QTest::addColumn<QPoint>("outwards");
        const auto row = [](const char* name, int corner, Grip grip, const QPoint& outwards) {
            QTest::newRow(name) << corner << grip << outwards;
        };
        row("top left, bottom", 0, Grip::eBottom, QPoint(0, 1));
        row("top left, right", 0, Grip::eRight, QPoint(1, 0));
        row("top left, bottom right", 0, Grip::eBottomRight, QPoint(1, 1));
        row("top right, bottom", 1, Grip::eBottom, QPoint(0, 1));
        row("top right, left", 1, Grip::eLeft, QPoint(-1, 0));
        row("top right, bottom left", 1, Grip::eBottomLeft, QPoint(-1, 1));
        row("bottom left, top", 2, Grip::eTop, QPoint(0, -1));
        row("bottom left, right", 2, Grip::eRight, QPoint(1, 0));
        row("bottom left, top right", 2, Grip::eTopRight, QPoint(1, -1));
        row("bottom right, top", 3, Grip::eTop, QPoint(0, -1));
        row("bottom right, left", 3, Grip::eLeft, QPoint(-1, 0));
        row("bottom right, top left", 3, Grip::eTopLeft, QPoint(-1, -1));
    }

    void grips_resize_away_from_the_corner()
    {
        QFETCH(const int, corner);
        QFETCH(const GV_WorldViewQt::eGrip, grip);
        QFETCH(const QPoint, outwards);
        QVERIFY(show());
        view().onActionMoveWorld(corner);
        const auto grown = [&](const QPoint& by) {
            return QSize(100 + outwards.x() * by.x(), 100 + outwards.y() * by.y());
        };
        QSize base(100, 100);
        for (const QPoint by : {QPoint(-10, -10), QPoint(23, 7), QPoint(-31, 44)}) {
            drag(grip, {QPoint(1, 1), QPoint(50, -60), by});
            const QSize change = grown(by) - QSize(100, 100);
            QCOMPARE(frame().size(), base + change);
            QVERIFY(standsIn(view(), corner));
            base += change;
        }
        QCOMPARE(view().navigator()->size(), frame().size() - QSize(10, 10));
        // Nothing is dragged any more.
        QTest::mouseMove(view().windowHandle(), QPoint(200, 200));
        QCOMPARE(frame().size(), base);
    }

    void the_top_left_grip_grows_it_in_the_bottom_right_corner()
    {
        QVERIFY(show());
        drag(Grip::eTopLeft, {QPoint(-10, -10)});
        QCOMPARE(frame().geometry(), QRect(387, 287, 110, 110));
    }

    void grips_towards_the_corner_do_nothing()
    {
        QVERIFY(show());
        for (int corner = 0; corner < 4; ++corner) {
            view().onActionMoveWorld(corner);
            const QPoint inwards(corner == 0 || corner == 2 ? 12 : -12,
                                 corner == 0 || corner == 1 ? 17 : -17);
            for (int i = 0; i < 8; ++i) {
                if (!gripsOf(corner).contains(i))
                    drag(Grip(i), {inwards});
            }
            QCOMPARE(frame().size(), QSize(100, 100));
            QVERIFY(standsIn(view(), corner));
        }
    }

    void other_buttons_do_not_drag_grips()
    {
        QVERIFY(show());
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
            drag(Grip::eTopLeft, {QPoint(-10, -10)}, button);
            QCOMPARE(frame().size(), QSize(100, 100));
        }
    }
};

QTEST_MAIN(tst_GV_ResizeCtrlQt)
#include "tst_GV_ResizeCtrlQt.moc"
