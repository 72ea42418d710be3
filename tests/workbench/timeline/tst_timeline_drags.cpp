// SPDX-License-Identifier: MIT
#include "tests/workbench/timeline/TimelineTest.h"

#include <QToolTip>

/// Trimming and moving exposures with the mouse.
class tst_timeline_drags : public TimelineTest
{
    Q_OBJECT

private:
    void undoesExactly(const Exposures& after)
    {
        QCOMPARE(history().count(), 1);
        QCOMPARE(robotShows(), after);
        history().undo();
        QCOMPARE(robotShows(), asOpened());
        history().redo();
        QCOMPARE(robotShows(), after);
    }
    Qt::CursorShape shapeAt(const QPoint& pos)
    {
        moveTo(pos);
        return canvas()->cursor().shape();
    }

private slots:
    void initTestCase() { makeModels(); }
    void cleanupTestCase() { closeModels(); }
    void init() { openTimeline(); }
    void cleanup() { closeTimeline(); }

    void the_first_frame_is_dragged()
    {
        drag(atFirst(0, 3), atFirst(0, 5));
        undoesExactly({{5, 8, _modelA}, {11, 14, _modelB}});
        QCOMPARE(history().text(0), QStringLiteral("Trim Drawing"));
    }

    void the_last_frame_is_dragged()
    {
        drag(atLast(0, 8), atLast(0, 9));
        undoesExactly({{3, 9, _modelA}, {11, 14, _modelB}});
    }

    void an_end_dragged_over_a_neighbour_cuts_it()
    {
        drag(atLast(0, 8), atLast(0, 12));
        undoesExactly({{3, 12, _modelA}, {13, 14, _modelB}});
        history().undo();
        drag(atFirst(0, 11), atFirst(0, 6));
        undoesExactly({{3, 5, _modelA}, {6, 14, _modelB}});
    }

    void an_end_stops_at_the_other_end_and_at_frame_1()
    {
        drag(atFirst(0, 3), atFirst(0, 20));
        undoesExactly({{8, 8, _modelA}, {11, 14, _modelB}});
        history().undo();
        drag(atLast(0, 8), atLast(0, 1));
        undoesExactly({{3, 3, _modelA}, {11, 14, _modelB}});
        history().undo();
        drag(atFirst(0, 3), QPoint(0, atFirst(0, 3).y()));
        undoesExactly({{1, 8, _modelA}, {11, 14, _modelB}});
    }

    void the_middle_moves_the_exposure()
    {
        drag(inRow(0, 5), inRow(0, 8));
        undoesExactly({{6, 11, _modelA}, {12, 14, _modelB}});
        QCOMPARE(history().text(0), QStringLiteral("Move Drawing"));
        history().undo();
        drag(inRow(0, 6), QPoint(0, inRow(0, 6).y()));
        undoesExactly({{1, 6, _modelA}, {11, 14, _modelB}});
        history().undo();
        // It comes to lie inside of a longer one, which is parted.
        _robot->exposeModel(20, 39, _modelA);
        tell();
        drag(inRow(0, 12), inRow(0, 27));
        QCOMPARE(
            robotShows(),
            (Exposures{{3, 8, _modelA}, {20, 25, _modelA}, {26, 29, _modelB}, {30, 39, _modelA}}));
    }

    void the_moved_exposure_stays_selected()
    {
        drag(inRow(0, 5), inRow(0, 8));
        QVERIFY(view().cursor().selected());
        QCOMPARE(*view().cursor().selected(), (Exposure{6, 11, _modelA}));
    }

    void an_open_end_stays_open_when_moved_and_is_taken_at_the_edge()
    {
        drag(inRow(1, 10), inRow(1, 14));
        QCOMPARE(_car->exposures(), (Exposures{{9, openEnd, _modelB}}));
        const int right = view().geometry().frames().right();
        const QPoint edge(right - 1, inRow(1, 20).y());
        drag(edge, inRow(1, 20));
        QCOMPARE(_car->exposures(), (Exposures{{9, 20, _modelB}}));
    }

    void a_drag_is_shown_before_it_is_done()
    {
        const QImage before = canvas()->grab().toImage();
        press(inRow(0, 5));
        const QImage selected = canvas()->grab().toImage();
        QVERIFY(selected != before);
        dragTo(inRow(0, 8));
        QVERIFY(view().isDragging());
        QVERIFY(canvas()->grab().toImage() != selected);
        QCOMPARE(robotShows(), asOpened());
        release(inRow(0, 8));
        QVERIFY(!view().isDragging());
        QCOMPARE(robotShows().front(), (Exposure{6, 11, _modelA}));
    }

    void escape_takes_a_drag_back()
    {
        press(inRow(0, 5));
        const QImage before = canvas()->grab().toImage();
        dragTo(inRow(0, 8));
        key(Qt::Key_Escape);
        QVERIFY(!view().isDragging());
        QCOMPARE(canvas()->grab().toImage(), before);
        dragTo(inRow(0, 9));
        release(inRow(0, 9));
        QCOMPARE(robotShows(), asOpened());
        QCOMPARE(history().count(), 0);
    }

    void a_drag_that_comes_back_leaves_no_step()
    {
        press(inRow(0, 5));
        dragTo(inRow(0, 9));
        dragTo(inRow(0, 5));
        release(inRow(0, 5));
        QCOMPARE(robotShows(), asOpened());
        QCOMPARE(history().count(), 0);
    }

    void a_hand_that_trembles_does_not_drag()
    {
        press(inRow(0, 5));
        dragTo(inRow(0, 5) + QPoint(2, 1));
        release(inRow(0, 5) + QPoint(2, 1));
        QVERIFY(!view().isDragging());
        QCOMPARE(history().count(), 0);
    }

    void keys_do_not_change_what_is_being_dragged()
    {
        press(inRow(0, 5));
        dragTo(inRow(0, 8));
        key(Qt::Key_Delete);
        QCOMPARE(robotShows(), asOpened());
        release(inRow(0, 8));
        QCOMPARE(robotShows().front(), (Exposure{6, 11, _modelA}));
    }

    void a_change_from_elsewhere_ends_the_drag()
    {
        press(inRow(0, 5));
        dragTo(inRow(0, 8));
        _robot->exposeModel(20, 21, _modelA);
        tell();
        QVERIFY(!view().isDragging());
        release(inRow(0, 8));
        QCOMPARE(history().count(), 0);
        press(inRow(0, 5));
        dragTo(inRow(0, 8));
        _session->closeScene();
        QVERIFY(!view().isDragging());
        release(inRow(0, 8));
    }

    void a_change_of_another_row_leaves_the_drag_alone()
    {
        press(inRow(0, 5));
        dragTo(inRow(0, 8));
        _car->exposeModel(1, 2, _modelA);
        tell();
        QVERIFY(view().isDragging());
        release(inRow(0, 8));
        QCOMPARE(history().count(), 1);
    }

    void a_drag_goes_on_outside_the_view()
    {
        press(inRow(0, 5));
        const QPoint outside(canvas()->width() + 60, inRow(0, 5).y());
        dragTo(outside);
        const double before = view().geometry().axis().origin();
        QTRY_VERIFY(view().geometry().axis().origin() > before + 20);
        release(outside);
        QVERIFY(robotShows().back().firstFrame > 60);
        QCOMPARE(robotShows().back().lastFrame - robotShows().back().firstFrame, 5);
    }

    void the_pointer_tells_what_would_be_dragged()
    {
        QCOMPARE(shapeAt(inRow(0, 5)), Qt::OpenHandCursor);
        QCOMPARE(shapeAt(atFirst(0, 3)), Qt::SizeHorCursor);
        QCOMPARE(shapeAt(atLast(0, 8)), Qt::SizeHorCursor);
        QCOMPARE(shapeAt(inRow(0, 10)), Qt::ArrowCursor);
        press(inRow(0, 5));
        dragTo(inRow(0, 8));
        QCOMPARE(canvas()->cursor().shape(), Qt::ClosedHandCursor);
        release(inRow(0, 8));
        QCOMPARE(shapeAt(inRow(0, 2)), Qt::ArrowCursor);
    }

    void a_locked_element_is_not_dragged_and_says_so()
    {
        _robot->setEditable(false);
        tell();
        QCOMPARE(shapeAt(inRow(0, 5)), Qt::ArrowCursor);
        drag(inRow(0, 5), inRow(0, 8));
        drag(atLast(0, 8), atLast(0, 9));
        QCOMPARE(robotShows(), asOpened());
        QCOMPARE(history().count(), 0);
        QTRY_VERIFY(QToolTip::text().contains(QStringLiteral("locked")));
        QToolTip::hideText();
    }
};

QTEST_MAIN(tst_timeline_drags)
#include "tst_timeline_drags.moc"
