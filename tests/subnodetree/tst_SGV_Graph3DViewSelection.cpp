// SPDX-License-Identifier: MIT

#include "tests/subnodetree/TreeTest.h"

#include <functional>

/// Rows and sub-selection in step: what is clicked in the tree is sub-selected in the host, and
/// what is sub-selected there is selected in the tree.
class tst_SGV_Graph3DViewSelection : public TreeTest
{
    Q_OBJECT

private:
    /// What the host was told of the sub-selection, and by how many steps the history has grown,
    /// during an action.
    struct Outcome
    {
        int notices;
        int steps;
        friend bool operator==(const Outcome&, const Outcome&) = default;
    };
    Outcome during(const std::function<void()>& action)
    {
        const QSignalSpy spy(_stage->context().changeManager(),
                             &TUSceneChangeManager::subSelectionChanged);
        const int before = _stage->history().index();
        action();
        return {static_cast<int>(spy.count()), _stage->history().index() - before};
    }
    int stepsDuring(const std::function<void()>& action) { return during(action).steps; }

private slots:
    void a_click_sub_selects_in_one_step()
    {
        addRobot();
        QVERIFY(_stage->show());
        const QSignalSpy told(&_stage->panel(), &SGV_Graph3DView::subSelectionChanged);
        const Outcome outcome = during([&] { _stage->click(QS("hand")); });
        QVERIFY(outcome.notices >= 1);
        QCOMPARE(outcome.steps, 1);
        QCOMPARE(told.count(), 1);
        QCOMPARE(_stage->lastStep(), QS("Subnode Selection"));
        QCOMPARE(_stage->subSelected(), names("hand"));
        QCOMPARE(_stage->selectedRows(), names("hand"));
        QCOMPARE(_stage->path(), QS(" robot > body > arm > hand"));
    }

    void the_host_knows_already_when_the_panel_tells()
    {
        addRobot();
        QVERIFY(_stage->show());
        QStringList seen;
        int steps = 0;
        connect(&_stage->panel(), &SGV_Graph3DView::subSelectionChanged, this, [&] {
            seen = _stage->subSelected();
            steps = _stage->history().count();
        });
        _stage->click(QS("leg"));
        QCOMPARE(seen, names("leg"));
        QCOMPARE(steps, 1);
    }

    void another_click_replaces_in_one_step()
    {
        addRobot();
        QVERIFY(_stage->show());
        _stage->click(QS("hand"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("leg")); }), 1);
        QCOMPARE(_stage->subSelected(), names("leg"));
        QCOMPARE(_stage->selectedRows(), names("leg"));
        QCOMPARE(_stage->path(), QS(" robot > body > leg"));
    }

    void a_second_click_on_the_same_row_changes_nothing()
    {
        addRobot();
        QVERIFY(_stage->show());
        _stage->click(QS("hand"));
        QCOMPARE(during([&] { _stage->click(QS("hand")); }), (Outcome{0, 0}));
        QCOMPARE(_stage->subSelected(), names("hand"));
    }

    void ctrl_clicks_add_and_take_away()
    {
        addRobot();
        QVERIFY(_stage->show());
        _stage->click(QS("leg"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("arm"), Qt::ControlModifier); }), 1);
        QCOMPARE(_stage->subSelected(), names("leg arm"));
        QCOMPARE(_stage->selectedRows(), names("arm leg"));
        QCOMPARE(_stage->path(), QS(" robot > body > leg"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("leg"), Qt::ControlModifier); }), 1);
        QCOMPARE(_stage->subSelected(), names("arm"));
        QCOMPARE(_stage->path(), QS(" robot > body > arm"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("arm"), Qt::ControlModifier); }), 1);
        QVERIFY(_stage->subSelected().isEmpty());
        QCOMPARE(_stage->path(), QS(" robot > "));
    }

    void shift_selects_three_rows_in_one_step()
    {
        addSelected(fan(names("a b c d e")));
        QVERIFY(_stage->show());
        _stage->click(QS("b"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("d"), Qt::ShiftModifier); }), 1);
        QCOMPARE(_stage->lastStep(), QS("Subnode Selection"));
        QCOMPARE(_stage->selectedRows(), names("b c d"));
        QCOMPARE(_stage->subSelected(), names("b c d"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("a"), Qt::ShiftModifier); }), 1);
        QCOMPARE(_stage->selectedRows(), names("a b"));
        QCOMPARE(sorted(_stage->subSelected()), names("a b"));
    }

    void keys_select_as_the_mouse_does()
    {
        addSelected(fan(names("a b c")));
        QVERIFY(_stage->show());
        _stage->click(QS("a"));
        QCOMPARE(
            stepsDuring([&] { QTest::keyClick(&_stage->tree(), Qt::Key_Down, Qt::ShiftModifier); }),
            1);
        QCOMPARE(_stage->subSelected(), names("a b"));
        QCOMPARE(stepsDuring([&] { QTest::keyClick(&_stage->tree(), Qt::Key_Down); }), 1);
        QCOMPARE(_stage->subSelected(), names("c"));
    }

    void undo_and_redo_restore_exactly_and_show_in_the_tree()
    {
        addSelected(fan(names("a b c d")));
        QVERIFY(_stage->show());
        _stage->click(QS("c"));
        _stage->click(QS("a"), Qt::ControlModifier);
        _stage->click(QS("d"), Qt::ControlModifier);
        _stage->click(QS("b"));
        const QList<QStringList> states{{}, names("c"), names("c a"), names("c a d"), names("b")};
        const QList<QStringList> rows{{}, names("c"), names("a c"), names("a c d"), names("b")};
        QCOMPARE(_stage->history().count(), 4);
        for (int at = 3; at >= 0; --at) {
            _stage->history().undo();
            QCOMPARE(_stage->subSelected(), states[at]);
            QCOMPARE(_stage->selectedRows(), rows[at]);
        }
        QCOMPARE(_stage->path(), QS(" robot > "));
        for (int at = 1; at <= 4; ++at) {
            _stage->history().redo();
            QCOMPARE(_stage->subSelected(), states[at]);
            QCOMPARE(_stage->selectedRows(), rows[at]);
        }
        QCOMPARE(_stage->path(), QS(" robot > top > b"));
        QCOMPARE(_stage->history().count(), 4);
    }

    void the_hosts_sub_selection_shows_without_a_step()
    {
        MO_ElementModule& element = addRobot();
        QVERIFY(_stage->show());
        const QSignalSpy told(&_stage->panel(), &SGV_Graph3DView::subSelectionChanged);
        const Outcome outcome = during([&] { _stage->subSelect(element, names("leg hand")); });
        QCOMPARE(outcome, (Outcome{1, 0}));
        QCOMPARE(_stage->selectedRows(), names("hand leg"));
        QCOMPARE(_stage->subSelected(), names("leg hand"));
        element.selInterface()->clearSubSelection();
        QCOMPARE(during([&] { _stage->notify(); }), (Outcome{1, 0}));
        QVERIFY(_stage->selectedRows().isEmpty());
        QCOMPARE(told.count(), 0);
    }

    void the_first_sub_selected_row_is_brought_into_sight()
    {
        QStringList many;
        for (int ix = 0; ix < 300; ++ix)
            many.append(QString::number(ix));
        MO_ElementModule& element = addSelected(fan(many));
        QVERIFY(_stage->show());
        const auto isSeen = [&](const char* name) {
            return _stage->tree().viewport()->rect().contains(
                _stage->tree().visualRect(_stage->row(QS(name))).center());
        };
        QVERIFY(!isSeen("280"));
        _stage->subSelect(element, names("280 3"));
        QVERIFY(isSeen("280"));
        QVERIFY(!isSeen("3"));
    }

    void typing_in_the_filter_changes_no_sub_selection()
    {
        MO_ElementModule& element = addRobot();
        QVERIFY(_stage->show());
        _stage->subSelect(element, names("leg hand"));
        const Outcome outcome = during([&] {
            _stage->panel().filterField()->setFocus();
            QTest::keyClicks(_stage->panel().filterField(), QS("leg"));
        });
        QCOMPARE(outcome, (Outcome{0, 0}));
        QCOMPARE(_stage->outline(), QS("body(leg)"));
        QCOMPARE(_stage->selectedRows(), names("leg"));
        QCOMPARE(_stage->subSelected(), names("leg hand"));
        QCOMPARE(during([&] { _stage->filter(QS("nothing of this")); }), (Outcome{0, 0}));
        QVERIFY(_stage->rows().isEmpty());
        QCOMPARE(during([&] { _stage->filter(QString()); }), (Outcome{0, 0}));
        QCOMPARE(_stage->selectedRows(), names("hand leg"));
        QCOMPARE(_stage->subSelected(), names("leg hand"));
    }

    void typing_in_the_filter_expands_all()
    {
        addRobot();
        _stage->tree().collapseAll();
        _stage->filter(QS("H"));
        QCOMPARE(_stage->outline(), QS("body(arm(hand))"));
        QCOMPARE(_stage->expandedRows(), names("body arm"));
    }

    void clicks_among_filtered_rows_leave_hidden_ones_sub_selected()
    {
        MO_ElementModule& element = addRobot();
        QVERIFY(_stage->show());
        _stage->subSelect(element, names("leg"));
        _stage->filter(QS("hand"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("hand")); }), 1);
        QCOMPARE(_stage->subSelected(), names("leg hand"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("arm")); }), 1);
        QCOMPARE(_stage->subSelected(), names("leg arm"));
        _stage->filter(QString());
        QCOMPARE(_stage->selectedRows(), names("arm leg"));
    }

    void rebuilt_rows_change_no_sub_selection()
    {
        MO_ElementModule& element = _stage->addElement(QS("robot"), robotModel(), 1, 5);
        element.exposeModel(6, 9, fan(names("wheel door")));
        _stage->select({&element});
        QVERIFY(_stage->show());
        _stage->click(QS("hand"));
        _stage->click(QS("leg"), Qt::ControlModifier);
        for (const int frame : {6, 20, 6, 1, 20}) {
            QCOMPARE(during([&] { _stage->goToFrame(frame); }), (Outcome{0, 0}));
            QCOMPARE(_stage->subSelected(), names("hand leg"));
            QCOMPARE(_stage->selectedRows(), frame == 1 ? names("hand leg") : QStringList());
        }
        QCOMPARE(during([&] { _stage->goToFrame(1); }), (Outcome{0, 0}));
        QCOMPARE(_stage->selectedRows(), names("hand leg"));
    }

    void subnodes_of_another_drawing_join_the_sub_selection()
    {
        MO_ElementModule& element = _stage->addElement(QS("robot"), robotModel(), 1, 5);
        element.exposeModel(6, 9, fan(names("wheel door")));
        _stage->select({&element});
        QVERIFY(_stage->show());
        _stage->click(QS("hand"));
        _stage->goToFrame(6);
        QCOMPARE(stepsDuring([&] { _stage->click(QS("door")); }), 1);
        QCOMPARE(_stage->subSelected(), names("hand door"));
        _stage->goToFrame(1);
        QCOMPARE(_stage->selectedRows(), names("hand"));
        _stage->history().undo();
        QCOMPARE(_stage->subSelected(), names("hand"));
    }

    void bringing_into_step_by_hand_is_no_change()
    {
        MO_ElementModule& element = addRobot();
        element.selInterface()->subSelect(2, true);
        const int before = _stage->history().count();
        const QSignalSpy told(&_stage->panel(), &SGV_Graph3DView::subSelectionChanged);
        _stage->panel().updateSelection();
        QCOMPARE(_stage->selectedRows(), _stage->subSelected());
        QCOMPARE(_stage->selectedRows().size(), 1);
        element.selInterface()->clearSubSelection();
        _stage->panel().onFilterChanged();
        QVERIFY(_stage->selectedRows().isEmpty());
        QCOMPARE(told.count(), 0);
        QCOMPARE(_stage->history().count(), before);
    }

    void reported_rows_that_agree_with_the_host_are_no_change()
    {
        MO_ElementModule& element = addRobot();
        _stage->subSelect(element, names("leg"));
        const QItemSelection leg(_stage->row(QS("leg")), _stage->row(QS("leg")));
        const QItemSelection hand(_stage->row(QS("hand")), _stage->row(QS("hand")));
        SGV_Graph3DView& panel = _stage->panel();
        QCOMPARE(during([&] { panel.on3DModelSubSectionChanged(leg, hand); }), (Outcome{0, 0}));
        QCOMPARE(during([&] { panel.on3DModelSubSectionChanged({}, {}); }), (Outcome{0, 0}));
        QCOMPARE(_stage->subSelected(), names("leg"));
        QCOMPARE(stepsDuring([&] { panel.on3DModelSubSectionChanged(hand, leg); }), 1);
        QCOMPARE(_stage->subSelected(), names("hand"));
    }

    void all_are_selected_and_deselected_in_one_step_each()
    {
        addRobot();
        QVERIFY(_stage->show());
        QCOMPARE(stepsDuring([&] { _stage->panel().selectAll(); }), 1);
        QCOMPARE(sorted(_stage->subSelected()), names("arm body hand leg"));
        QCOMPARE(_stage->lastStep(), QS("Subnode Selection"));
        QCOMPARE(stepsDuring([&] { _stage->panel().deselect(); }), 1);
        QVERIFY(_stage->subSelected().isEmpty());
        QCOMPARE(stepsDuring([&] { _stage->panel().deselect(); }), 0);
        _stage->history().undo();
        QCOMPARE(_stage->selectedRows(), names("body arm hand leg"));
    }

    void a_row_whose_subnode_has_no_id_makes_no_step()
    {
        using namespace ModelBuilder;
        addSelected(model(key("top", {shapedKey(""), shapedKey("named")})));
        QVERIFY(_stage->show());
        const QModelIndex nameless = _stage->rows().at(1);
        QCOMPARE(nameless.data().toString(), QString());
        QCOMPARE(stepsDuring([&] { _stage->click(nameless); }), 0);
        QVERIFY(_stage->subSelected().isEmpty());
        _stage->click(QS("named"));
        QCOMPARE(stepsDuring([&] { _stage->click(nameless, Qt::ControlModifier); }), 0);
        QCOMPARE(_stage->subSelected(), names("named"));
        QCOMPARE(_stage->selectedRows(), names("named"));
        QCOMPARE(stepsDuring([&] { _stage->click(nameless); }), 1);
        QVERIFY(_stage->subSelected().isEmpty());
        QVERIFY(_stage->selectedRows().isEmpty());
    }

    void of_equal_names_the_first_row_stands_for_the_subnode()
    {
        MO_ElementModule& element = addSelected(fan(names("twin other twin")));
        QVERIFY(_stage->show());
        _stage->subSelect(element, names("twin"));
        const QModelIndexList all = _stage->rows();
        QVERIFY(_stage->tree().selectionModel()->isSelected(all.at(1)));
        QVERIFY(!_stage->tree().selectionModel()->isSelected(all.at(3)));
        element.selInterface()->clearSubSelection();
        _stage->notify();
        // The second one means the same subnode, and the first one shows it as well.
        QCOMPARE(stepsDuring([&] { _stage->click(all.at(3)); }), 1);
        QCOMPARE(_stage->subSelected(), names("twin"));
        QCOMPARE(_stage->selectedRows(), names("twin twin"));
        QCOMPARE(stepsDuring([&] { _stage->click(QS("other")); }), 1);
        QCOMPARE(_stage->subSelected(), names("other"));
        QCOMPARE(_stage->selectedRows(), names("other"));
    }
};

QTEST_MAIN(tst_SGV_Graph3DViewSelection)
#include "tst_SGV_Graph3DViewSelection.moc"
