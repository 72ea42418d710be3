// SPDX-License-Identifier: MIT

#include "tests/graphview/PanelTest.h"

namespace {

using namespace ModelBuilder;

const QString arm = QStringLiteral("arm");
const QString hand = QStringLiteral("hand");
const QString leg = QStringLiteral("leg");

} // namespace

/// What selecting and deselecting everything does.
class tst_GV_GraphXViewCtrlSelectAll : public PanelTest
{
    Q_OBJECT

private slots:
    void select_all_selects_every_key_node_folded_away_or_not()
    {
        PR_Preference::instance()->setBoolValue(extendedKey(), true);
        MO_ElementModule& shown = _stage->addElement(
            QStringLiteral("a"),
            model(key("body", {group("plain", {shapedKey("hand")}), key("arm"), geometry("leg")})));
        QVERIFY(startWith({&shown}, {arm}));
        _stage->node(QStringLiteral("plain"))->setCollapsed(true);
        _stage->graph().calculateGeometricData();
        QVERIFY(repaints([&] { QVERIFY(controller()->onSelectAll()); }) > 0);
        QCOMPARE(selected(), QStringLiteral("a(body hand arm)"));
        QCOMPARE(takeNotices(), std::pair(0, 1));
        QCOMPARE(_stage->selectedNames(),
                 QStringList({QStringLiteral("a"), arm, QStringLiteral("body"), hand}));
        QVERIFY(controller()->onSelectAll());
        QCOMPARE(selected(), QStringLiteral("a(body hand arm)"));
        QCOMPARE(takeNotices(), std::pair(0, 1));
    }

    void select_all_leaves_the_other_elements_as_they_are()
    {
        QVERIFY(showRobots());
        _stage->select({node(QStringLiteral("a")), node(QStringLiteral("b"))});
        _stage->subSelect(element(QStringLiteral("b")), {leg});
        takeNotices();
        QVERIFY(controller()->onSelectAll());
        QCOMPARE(selected(), QStringLiteral("a(body arm hand leg) b(leg)"));
        QCOMPARE(takeNotices(), std::pair(0, 1));
    }

    void select_all_of_an_element_that_is_not_selected_only_tells_and_repaints()
    {
        QVERIFY(showRobots());
        const SL_Selection::BatchSelectionModeScope scope(_stage->context().selection());
        _stage->context().selection()->clear();
        QVERIFY(repaints([&] { QVERIFY(controller()->onSelectAll()); }) > 0);
        QCOMPARE(selected(), QString());
        QCOMPARE(takeNotices(), std::pair(0, 1));
        QCOMPARE(_stage->graph().visibleGraphIx(), 0);
    }

    void deselect_all_tells_of_both_selections_once()
    {
        QVERIFY(showRobots());
        for (const auto& names : {QStringList(), QStringList(leg)}) {
            _stage->select({node(QStringLiteral("a")), node(QStringLiteral("peg"))});
            _stage->subSelect(element(QStringLiteral("a")), names);
            takeNotices();
            QVERIFY(repaints([&] { QVERIFY(controller()->onDeselectAll(true)); }) > 0);
            QCOMPARE(selected(), QString());
            QCOMPARE(takeNotices(), std::pair(1, 1));
            QVERIFY(_stage->selectedNames().isEmpty());
            QCOMPARE(_stage->graph().visibleGraphIx(), -1);
        }
        QVERIFY(!controller()->onDeselectAll(true));
        QCOMPARE(takeNotices(), std::pair(0, 0));
    }

    void deselect_all_can_leave_the_telling_to_the_caller()
    {
        QVERIFY(showRobots());
        QVERIFY(controller()->onDeselectAll(false));
        QCOMPARE(selected(), QString());
        QVERIFY(_stage->selectedNames().isEmpty());
        QCOMPARE(takeNotices(), std::pair(0, 0));
        QVERIFY(!controller()->onDeselectAll(false));
        _stage->notify();
        QCOMPARE(takeNotices(), std::pair(1, 1));
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrlSelectAll)
#include "tst_GV_GraphXViewCtrlSelectAll.moc"
