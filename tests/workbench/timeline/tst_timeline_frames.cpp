// SPDX-License-Identifier: MIT
#include "tests/workbench/timeline/TimelineTest.h"

#include <QAbstractEventDispatcher>
#include <QScrollBar>
#include <QSpinBox>
#include <QWheelEvent>

/// Going to frames, zooming and scrolling.
class tst_timeline_frames : public TimelineTest
{
    Q_OBJECT

private:
    void wheel(const QPoint& pos, const QPoint& turned, Qt::KeyboardModifiers held)
    {
        QWheelEvent event(pos, canvas()->mapToGlobal(pos), {}, turned, Qt::NoButton, held,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(canvas(), &event);
    }
    bool isInView(int frame)
    {
        const TimelineLayout& layout = view().geometry();
        return layout.xOf(frame) >= layout.frames().left() - 1 &&
               layout.xOf(frame + 1.0) <= layout.frames().right() + 2;
    }

private slots:
    void initTestCase() { makeModels(); }
    void cleanupTestCase() { closeModels(); }
    void init() { openTimeline(); }
    void cleanup() { closeTimeline(); }

    void a_click_on_the_ruler_goes_to_the_frame()
    {
        click(onRuler(7));
        QCOMPARE(frame(), 7);
        click(onRuler(1));
        QCOMPARE(frame(), 1);
    }

    void a_drag_on_the_ruler_goes_along_and_never_below_1()
    {
        press(onRuler(7));
        dragTo(onRuler(9));
        QCOMPARE(frame(), 9);
        dragTo(onRuler(2));
        QCOMPARE(frame(), 2);
        dragTo(QPoint(-50, 5));
        QCOMPARE(frame(), 1);
        release(QPoint(-50, 5));
        dragTo(onRuler(5));
        QCOMPARE(frame(), 1);
    }

    void a_pointer_held_outside_takes_the_frames_along()
    {
        const int last = view().geometry().frameAt(canvas()->width());
        const auto timers = [this] {
            return QAbstractEventDispatcher::instance()->registeredTimers(&view()).size();
        };
        const auto before = timers();
        press(onRuler(7));
        dragTo(QPoint(canvas()->width() + 40, 5));
        QVERIFY(timers() > before);
        QTRY_VERIFY(frame() > last + 20);
        QVERIFY(isInView(frame()));
        release(QPoint(canvas()->width() + 40, 5));
        // Nothing is left that could take them further.
        QCOMPARE(timers(), before);
    }

    void keys_go_through_the_frames()
    {
        key(Qt::Key_Right);
        QCOMPARE(frame(), 2);
        key(Qt::Key_Left);
        key(Qt::Key_Left);
        QCOMPARE(frame(), 1);
        key(Qt::Key_End);
        QCOMPARE(frame(), 14);
        key(Qt::Key_Home);
        QCOMPARE(frame(), 1);
        goTo(openEnd);
        key(Qt::Key_Right);
        QCOMPARE(frame(), openEnd);
    }

    void keys_go_to_where_the_row_changes()
    {
        key(Qt::Key_PageDown);
        QCOMPARE(frame(), 1);
        click(inRow(0, 1));
        QList<int> visited;
        for (int i = 0; i < 5; ++i) {
            key(Qt::Key_PageDown);
            visited << frame();
        }
        QCOMPARE(visited, (QList<int>{3, 9, 11, 15, 15}));
        key(Qt::Key_PageUp);
        QCOMPARE(frame(), 11);
        key(Qt::Key_Down);
        key(Qt::Key_PageUp);
        QCOMPARE(frame(), 5);
    }

    void the_view_follows_the_host()
    {
        QVERIFY(!isInView(500));
        goTo(500);
        QVERIFY(isInView(500));
        goTo(2);
        QVERIFY(isInView(2));
        goTo(openEnd);
        QVERIFY(isInView(openEnd));
        goTo(openEnd / 2);
        QVERIFY(isInView(openEnd / 2));
        const QImage there = canvas()->grab().toImage();
        goTo(openEnd / 2 + 1);
        QVERIFY(canvas()->grab().toImage() != there);
    }

    void the_wheel_zooms_about_the_pointer()
    {
        const TimelineLayout& layout = view().geometry();
        goTo(300);
        const QPoint pos = onRuler(300);
        const double before = layout.axis().pixelsPerFrame();
        wheel(pos, {0, 120}, Qt::ControlModifier);
        QCOMPARE(layout.axis().pixelsPerFrame(), before * 1.25);
        QCOMPARE(layout.frameAt(pos.x()), 300);
        wheel(pos, {0, -120}, Qt::ControlModifier);
        QCOMPARE(layout.axis().pixelsPerFrame(), before);
        QCOMPARE(layout.frameAt(pos.x()), 300);
    }

    void keys_zoom()
    {
        const TimelineLayout& layout = view().geometry();
        const double before = layout.axis().pixelsPerFrame();
        key(Qt::Key_Plus, Qt::ShiftModifier);
        QCOMPARE(layout.axis().pixelsPerFrame(), before * 1.25);
        key(Qt::Key_Minus);
        key(Qt::Key_Minus, Qt::KeypadModifier);
        QCOMPARE(layout.axis().pixelsPerFrame(), before / 1.25);
        key(Qt::Key_Equal);
        QCOMPARE(layout.axis().pixelsPerFrame(), before);
    }

    void scrolling_shows_other_frames()
    {
        _robot->exposeModel(1000, 2000, _modelA);
        tell();
        QScrollBar* bar = view().horizontalScrollBar();
        bar->setValue(900);
        QCOMPARE(view().geometry().axis().origin(), 901.0);
        wheel(inRow(0, 910), {0, 120}, Qt::ShiftModifier);
        QVERIFY(view().geometry().axis().origin() < 901);
        bar->setValue(bar->maximum());
        QVERIFY(isInView(2000));
        bar->setValue(0);
        QCOMPARE(view().geometry().axis().origin(), 1.0);
        // What there is has become shorter than what is scrolled to.
        bar->setValue(bar->maximum());
        _robot->exposeModel(1, 2000, nullptr);
        tell();
        bar->setValue(0);
        QVERIFY(isInView(1));
    }

    void the_box_shows_the_frame_and_goes_to_one()
    {
        QSpinBox* box = nullptr;
        for (QSpinBox* each : _dock->findChildren<QSpinBox*>()) {
            if (each->accessibleName() == QLatin1String("Current frame"))
                box = each;
        }
        QVERIFY(box);
        goTo(9);
        QCOMPARE(box->value(), 9);
        box->setValue(4);
        QCOMPARE(frame(), 4);
    }

    void without_a_scene_there_is_a_hint_and_nothing_to_do()
    {
        const QImage filled = canvas()->grab().toImage();
        _session->closeScene();
        QCOMPARE(view().rows().count(), 0);
        const QImage hint = canvas()->grab().toImage();
        QVERIFY(hint != filled);
        QImage blank = hint;
        blank.fill(view().palette().color(QPalette::Base));
        QVERIFY(hint != blank);
        click(onRuler(7));
        click(inRow(0, 4));
        for (const Qt::Key pressed :
             {Qt::Key_Right, Qt::Key_End, Qt::Key_Down, Qt::Key_BracketRight, Qt::Key_Delete,
              Qt::Key_PageDown, Qt::Key_Space})
            key(pressed);
        QVERIFY(!menuAt(inRow(0, 4)));
        for (const QAction* action : _dock->transport().transportActions())
            QVERIFY(action == _dock->transport().loopAction() || !action->isEnabled());
        QCOMPARE(canvas()->grab().toImage(), hint);
    }
};

QTEST_MAIN(tst_timeline_frames)
#include "tst_timeline_frames.moc"
