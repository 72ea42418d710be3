// SPDX-License-Identifier: MIT
#include "tests/workbench/timeline/TimelineTest.h"

#include "host/models/AT_ModelNodeKey.h"
#include "host/scene/MO_PegModule.h"
#include "host/selection/SLB_NodeInterface.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

/// The rows: what they list, how they are selected, and how they look.
class tst_timeline_rows : public TimelineTest
{
    Q_OBJECT

private:
    QStringList listed()
    {
        QStringList names;
        for (int i = 0; i < view().rows().count(); ++i)
            names << view().rows().row(i)->name;
        return names;
    }
    std::vector<MO_Node*> selected() { return context().selection()->nodes(); }
    void select(const std::vector<MO_Node*>& nodes)
    {
        SL_Selection* selection = context().selection();
        const SL_Selection::BatchSelectionModeScope scope(selection);
        selection->clear();
        for (MO_Node* node : nodes)
            selection->add(node);
    }
    QPoint onName(int row) { return {10, inRow(row, 1).y()}; }
    QString tipAt(const QPoint& pos)
    {
        QToolTip::hideText();
        if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); }))
            return QStringLiteral("the one before is still there");
        QHelpEvent event(QEvent::ToolTip, pos, canvas()->mapToGlobal(pos));
        QApplication::sendEvent(canvas(), &event);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    QColor colourAt(const QPoint& pos)
    {
        return canvas()->grab().toImage().pixelColor(pos * canvas()->devicePixelRatio());
    }
    static int contrast(const QColor& a, const QColor& b)
    {
        return std::abs(qGray(a.rgb()) - qGray(b.rgb()));
    }

private slots:
    void initTestCase() { makeModels(); }
    void cleanupTestCase() { closeModels(); }
    void init() { openTimeline(); }
    void cleanup()
    {
        QToolTip::hideText();
        closeTimeline();
    }

    void there_is_a_row_for_each_element_in_the_order_of_the_scene()
    {
        QCOMPARE(listed(), (QStringList{"robot", "car"}));
        MO_GroupModule& root = *_session->currentScene()->rootGroup();
        root.insertNode(std::make_unique<MO_PegModule>(QStringLiteral("peg")));
        addElement(root, "house");
        tell();
        QCOMPARE(listed(), (QStringList{"robot", "car", "house"}));
        root.moveNode(_robot, 3);
        tell();
        QCOMPARE(listed(), (QStringList{"car", "house", "robot"}));
        _robot->setInstanceName(QStringLiteral("machine"));
        tell();
        QCOMPARE(listed(), (QStringList{"car", "house", "machine"}));
        root.takeNode(_robot).reset();
        tell();
        QCOMPARE(listed(), (QStringList{"car", "house"}));
    }

    void a_click_selects_the_node_and_keeps_its_sub_selection()
    {
        click(onName(0));
        QCOMPARE(selected(), std::vector<MO_Node*>{_robot});
        int id = 0;
        QVERIFY(_robot->getSelIdForNodeKey(AT_ModelNodeKey("a"), id));
        {
            const SL_Selection::BatchSelectionModeScope scope(context().selection());
            _robot->selInterface()->subSelect(id, false);
        }
        click(inRow(0, 5));
        QCOMPARE(_robot->selInterface()->subSelectedIds(), std::vector<int>{id});
        click(onName(1));
        QCOMPARE(selected(), std::vector<MO_Node*>{_car});
        click(onName(0), Qt::ControlModifier);
        QCOMPARE(selected(), (std::vector<MO_Node*>{_car, _robot}));
        click(onName(0), Qt::ControlModifier);
        QCOMPARE(selected(), std::vector<MO_Node*>{_car});
    }

    void what_the_host_selects_becomes_the_current_row()
    {
        select({_car});
        QCOMPARE(view().cursor().row(), 1);
        // One that is selected already stays the current one.
        select({_robot, _car});
        QCOMPARE(view().cursor().row(), 1);
        select({_robot});
        QCOMPARE(view().cursor().row(), 0);
        select({});
        QCOMPARE(view().cursor().row(), 0);
    }

    void another_row_has_no_selected_drawing()
    {
        click(inRow(0, 5));
        QVERIFY(view().cursor().selected());
        select({_car});
        QVERIFY(!view().cursor().selected());
        click(inRow(0, 5));
        _robot->exposeModel(1, 9, nullptr);
        tell();
        QVERIFY(!view().cursor().selected());
    }

    void a_row_that_is_deleted_is_current_no_more()
    {
        click(inRow(0, 5));
        _session->currentScene()->rootGroup()->takeNode(_robot).reset();
        tell();
        QCOMPARE(view().cursor().row(), -1);
        QVERIFY(!view().cursor().selected());
        QCOMPARE(listed(), QStringList{"car"});
    }

    void an_element_that_is_gone_before_it_is_told_is_skipped()
    {
        _session->currentScene()->rootGroup()->takeNode(_robot).reset();
        canvas()->grab();
        click(inRow(0, 5));
        key(Qt::Key_Delete);
        QCOMPARE(selected(), std::vector<MO_Node*>());
        QCOMPARE(history().count(), 0);
        tell();
        QCOMPARE(listed(), QStringList{"car"});
    }

    void tool_tips_tell_what_is_shown_when()
    {
        QCOMPARE(tipAt(inRow(0, 5)), QStringLiteral("walk: frames 3 to 8"));
        QCOMPARE(tipAt(inRow(1, 9)), QStringLiteral("car: from frame 5 on"));
        QCOMPARE(tipAt(onName(0)), QStringLiteral("robot"));
        QVERIFY(tipAt(inRow(0, 9)).isEmpty());
        QVERIFY(tipAt(onRuler(9)).isEmpty());
        _robot->setEditable(false);
        tell();
        QVERIFY(tipAt(inRow(0, 5)).contains(QStringLiteral("locked")));
    }

    void bars_lie_on_the_frames_that_are_shown()
    {
        const auto bar = [this](int row, int frame) {
            const QPoint low(0, view().geometry().rowHeight() / 2 - 4);
            return colourAt(inRow(row, frame + 0.25) + low);
        };
        const QColor shown = bar(0, 6);
        QVERIFY(contrast(shown, view().palette().color(QPalette::Base)) > 30);
        QCOMPARE(bar(0, 4), shown);
        QCOMPARE(bar(0, 13), shown);
        QVERIFY(bar(0, 2) != shown);
        QVERIFY(bar(0, 9) != shown);
        QVERIFY(bar(0, 15) != shown);
        QVERIFY(bar(1, 4) != shown);
        QCOMPARE(bar(1, 20), shown);
        const int last = view().geometry().frameAt(canvas()->width());
        QVERIFY(contrast(bar(1, last - 2), shown) > 10);
    }

    void the_marker_goes_through_all_rows_and_is_seen_in_both_themes()
    {
        for (const bool dark : {false, true}) {
            QPalette palette(dark ? QColor(0x404040) : QColor(0xefefef));
            palette.setColor(QPalette::Base, dark ? QColor(0x2b2b2b) : QColor(Qt::white));
            palette.setColor(QPalette::Text, dark ? QColor(0xdcdcdc) : QColor(Qt::black));
            palette.setColor(QPalette::Highlight, QColor(0x308cc6));
            view().setPalette(palette);
            goTo(5);
            const QColor on = colourAt(inRow(0, 5) + QPoint(0, 8));
            const QColor under = colourAt(inRow(1, 5) + QPoint(0, 8));
            goTo(20);
            QVERIFY(contrast(on, colourAt(inRow(0, 5) + QPoint(0, 8))) > 60);
            QVERIFY(contrast(under, colourAt(inRow(1, 5) + QPoint(0, 8))) > 60);
        }
    }

    void many_rows_and_drawings_scroll_smoothly()
    {
        MO_GroupModule& root = *_session->currentScene()->rootGroup();
        for (int row = 0; row < 10000; ++row) {
            MO_ElementModule* element = addElement(root, "many");
            for (int i = 0; i < 10; ++i)
                element->exposeModel(1 + i * 7, 5 + i * 7, i % 2 ? _modelA : _modelB);
        }
        for (int first = 1; first < 200000; first += 2)
            _robot->exposeModel(first, first, _modelA);
        tell();
        QCOMPARE(view().rows().count(), 10002);
        // A picture at either end, near and far, costs as much as one of a small scene; the limit
        // is far above that, and far below what drawing everything would take.
        for (const double factor : {1.0, 1e-9}) {
            view().zoom(factor, 0);
            QElapsedTimer timer;
            timer.start();
            for (int i = 0; i < 10; ++i) {
                view().verticalScrollBar()->setValue(i % 2 ? view().verticalScrollBar()->maximum()
                                                           : 0);
                canvas()->grab();
            }
            QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
        }
    }

    void a_row_that_is_gone_to_comes_into_view()
    {
        MO_GroupModule& root = *_session->currentScene()->rootGroup();
        for (int row = 0; row < 100; ++row)
            addElement(root, "many");
        tell();
        select({root.nodes().back()});
        const TimelineLayout& layout = view().geometry();
        QVERIFY(layout.frames().contains(layout.rowRect(101).center()));
        select({_robot});
        QVERIFY(layout.frames().contains(layout.rowRect(0).center()));
    }
};

QTEST_MAIN(tst_timeline_rows)
#include "tst_timeline_rows.moc"
