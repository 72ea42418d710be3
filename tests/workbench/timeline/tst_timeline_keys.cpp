// SPDX-License-Identifier: MIT
#include "tests/workbench/timeline/TimelineTest.h"

#include <QShortcut>

/// The time line by keys alone.
class tst_timeline_keys : public TimelineTest
{
    Q_OBJECT

private:
    void selectFirst()
    {
        key(Qt::Key_Down);
        key(Qt::Key_BracketRight);
    }

private slots:
    void initTestCase() { makeModels(); }
    void cleanupTestCase() { closeModels(); }
    void init() { openTimeline(); }
    void cleanup() { closeTimeline(); }

    void rows_are_walked()
    {
        QCOMPARE(view().cursor().row(), -1);
        key(Qt::Key_Down);
        QCOMPARE(view().cursor().row(), 0);
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        QCOMPARE(view().cursor().row(), 1);
        key(Qt::Key_Up);
        key(Qt::Key_Up);
        QCOMPARE(view().cursor().row(), 0);
    }

    void drawings_of_the_row_are_walked()
    {
        key(Qt::Key_BracketRight);
        QVERIFY(!view().cursor().selected());
        selectFirst();
        QCOMPARE(view().cursor().exposure(), 0);
        key(Qt::Key_BracketRight);
        key(Qt::Key_BracketRight);
        QCOMPARE(view().cursor().exposure(), 1);
        key(Qt::Key_BracketLeft);
        key(Qt::Key_BracketLeft);
        QCOMPARE(view().cursor().exposure(), 0);
    }

    void walking_begins_at_the_current_frame_data()
    {
        QTest::addColumn<int>("frame");
        QTest::addColumn<int>("next");
        QTest::addColumn<int>("previous");
        QTest::newRow("before all") << 1 << 0 << -1;
        QTest::newRow("within") << 12 << 1 << 1;
        QTest::newRow("between") << 9 << 1 << 0;
        QTest::newRow("behind all") << 50 << -1 << 1;
    }
    void walking_begins_at_the_current_frame()
    {
        QFETCH(int, frame);
        key(Qt::Key_Down);
        goTo(frame);
        key(Qt::Key_BracketRight);
        QTEST(view().cursor().exposure(), "next");
        click(QPoint(10, inRow(0, 1).y()));
        key(Qt::Key_BracketLeft);
        QTEST(view().cursor().exposure(), "previous");
    }

    void the_selected_drawing_comes_into_view()
    {
        _robot->exposeModel(900, 910, _modelA);
        tell();
        goTo(1);
        key(Qt::Key_Down);
        for (int i = 0; i < 3; ++i)
            key(Qt::Key_BracketRight);
        const TimelineLayout& layout = view().geometry();
        QVERIFY(layout.xOf(900) > layout.frames().left());
        QVERIFY(layout.xOf(900) < layout.frames().right());
        key(Qt::Key_BracketLeft);
        QVERIFY(layout.xOf(14) > layout.frames().left());
    }

    void alt_and_arrows_move_the_drawing()
    {
        selectFirst();
        key(Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(robotShows().front(), (Exposure{4, 9, _modelA}));
        for (int i = 0; i < 9; ++i)
            key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(robotShows().front(), (Exposure{1, 6, _modelA}));
        QCOMPARE(history().count(), 4);
        QCOMPARE(history().text(0), QStringLiteral("Move Drawing"));
        for (int i = 0; i < 4; ++i)
            history().undo();
        QCOMPARE(robotShows(), asOpened());
        QCOMPARE(view().cursor().exposure(), 0);
    }

    void shift_and_arrows_move_its_end()
    {
        selectFirst();
        for (int i = 0; i < 3; ++i)
            key(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(robotShows(), (Exposures{{3, 11, _modelA}, {12, 14, _modelB}}));
        QCOMPARE(history().count(), 3);
        for (int i = 0; i < 20; ++i)
            key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(robotShows(), (Exposures{{3, 3, _modelA}, {12, 14, _modelB}}));
        QCOMPARE(history().text(0), QStringLiteral("Trim Drawing"));
    }

    void ctrl_and_arrows_move_its_beginning()
    {
        selectFirst();
        key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(robotShows().front(), (Exposure{4, 8, _modelA}));
        for (int i = 0; i < 20; ++i)
            key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(robotShows().front(), (Exposure{1, 8, _modelA}));
        QCOMPARE(history().count(), 4);
        for (int i = 0; i < 20; ++i)
            key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(robotShows().front(), (Exposure{8, 8, _modelA}));
    }

    void an_open_end_comes_to_the_current_frame()
    {
        goTo(20);
        click(inRow(1, 7));
        key(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(history().count(), 0);
        key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(_car->exposures(), (Exposures{{5, 20, _modelB}}));
        history().undo();
        goTo(2);
        key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(_car->exposures(), (Exposures{{5, 5, _modelB}}));
    }

    void without_a_selected_drawing_nothing_is_edited()
    {
        key(Qt::Key_Down);
        for (const Qt::KeyboardModifier held :
             {Qt::AltModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
            key(Qt::Key_Left, held);
            key(Qt::Key_Right, held);
        }
        QCOMPARE(robotShows(), asOpened());
        QCOMPARE(history().count(), 0);
    }

    void keys_of_the_window_are_the_time_lines_while_it_has_the_focus()
    {
        int others = 0;
        for (const QKeyCombination keys :
             {QKeyCombination(Qt::Key_Home), Qt::AltModifier | Qt::Key_Right,
              QKeyCombination(Qt::Key_Delete), QKeyCombination(Qt::Key_Plus)}) {
            auto* shortcut = new QShortcut(QKeySequence(keys), _window.get());
            connect(shortcut, &QShortcut::activated, this, [&others] { ++others; });
        }
        selectFirst();
        goTo(5);
        key(Qt::Key_Home);
        QCOMPARE(frame(), 1);
        key(Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(robotShows().front(), (Exposure{4, 9, _modelA}));
        const double scale = view().geometry().axis().pixelsPerFrame();
        key(Qt::Key_Plus);
        QVERIFY(view().geometry().axis().pixelsPerFrame() > scale);
        key(Qt::Key_Delete);
        key(Qt::Key_Delete);
        QCOMPARE(others, 0);
        view().clearFocus();
        key(Qt::Key_Home);
        QCOMPARE(others, 1);
    }

    void tab_leads_in_and_out_and_the_focus_is_seen()
    {
        const QImage focused = canvas()->grab().toImage();
        key(Qt::Key_Tab);
        QVERIFY(!view().hasFocus());
        QVERIFY(canvas()->grab().toImage() != focused);
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(view().hasFocus());
        QCOMPARE(canvas()->grab().toImage(), focused);
    }

    void where_the_keys_are_is_told_to_those_who_do_not_see_it()
    {
        QCOMPARE(view().accessibleName(), QStringLiteral("Timeline"));
        selectFirst();
        QCOMPARE(view().accessibleDescription(), QStringLiteral("robot, frames 3 to 8"));
        key(Qt::Key_Down);
        QCOMPARE(view().accessibleDescription(), QStringLiteral("car"));
        key(Qt::Key_BracketRight);
        QCOMPARE(view().accessibleDescription(), QStringLiteral("car, from frame 5 on"));
    }
};

QTEST_MAIN(tst_timeline_keys)
#include "tst_timeline_keys.moc"
