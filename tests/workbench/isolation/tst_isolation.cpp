// SPDX-License-Identifier: MIT

#include "host/scene/TUSceneChangeManager.h"
#include "tests/workbench/isolation/IsolationTest.h"

#include <QSignalSpy>

using namespace SubnodeRecords;

class tst_isolation : public IsolationTest
{
    Q_OBJECT

private slots:
    void init() { openStage(); }
    void cleanup() { closeStage(); }
    void shows_the_selected_subnodes_alone_in_one_step();
    void comes_back_in_one_step();
    void comes_back_whatever_is_selected_by_then();
    void tells_of_each_change_once();
    void each_element_is_isolated_by_itself();
    void works_on_the_element_that_was_selected_first();
    void changes_the_settings_that_hold_at_the_frame();
    void comes_back_at_the_frame_that_was_changed();
    void settings_before_the_first_hold_from_the_first_frame();
    void all_drawings_of_an_element_share_the_settings();
    void nothing_selected_is_nothing_to_do();
    void an_element_without_selected_subnodes_is_nothing_to_do();
    void a_node_that_is_no_element_is_nothing_to_do();
    void a_locked_element_is_not_isolated();
    void an_element_locked_meanwhile_can_be_left();
    void a_frame_without_a_model_is_nothing_to_do();
    void an_empty_model_is_nothing_to_do();
    void a_model_without_the_selected_subnodes_is_nothing_to_do();
};

void tst_isolation::shows_the_selected_subnodes_alone_in_one_step()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(_isolation->canToggle());
    QVERIFY(!_isolation->isIsolated(&robot));
    QCOMPARE(_isolation->selectedElement(), &robot);
    QVERIFY(_isolation->toggle());
    QVERIFY(_isolation->isIsolated(&robot));
    QVERIFY(settingsOf(robot) == (Settings{{1, armAlone()}}));
    QCOMPARE(history().count(), 1);
    QCOMPARE(history().undoText(), QStringLiteral("Isolate Subnodes"));
}

void tst_isolation::comes_back_in_one_step()
{
    MO_ElementModule& robot = addSelected({"hand"});
    const AT_ModelData before = records({{"leg", movable}, {"arm", off}, {"elsewhere", off}});
    set(robot, 1, before);
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) == (Settings{{1, records({{"leg", offAndMovable},
                                                        {"arm", hidden},
                                                        {"elsewhere", off},
                                                        {"body", hidden}})}}));
    QVERIFY(_isolation->toggle());
    QVERIFY(!_isolation->isIsolated(&robot));
    QVERIFY(settingsOf(robot) == (Settings{{1, before}}));
    QCOMPARE(history().count(), 2);
    QCOMPARE(history().undoText(), QStringLiteral("Leave Isolation"));
}

void tst_isolation::comes_back_whatever_is_selected_by_then()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    robot.selInterface()->clearSubSelection();
    QVERIFY(_isolation->canToggle());
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
    QVERIFY(!_isolation->canToggle());
}

void tst_isolation::tells_of_each_change_once()
{
    addSelected({"arm"});
    QSignalSpy changes(context().changeManager(), &TUSceneChangeManager::nodesChanged);
    QVERIFY(_isolation->toggle());
    QCOMPARE(changes.count(), 1);
    QVERIFY(_isolation->toggle());
    QCOMPARE(changes.count(), 2);
}

void tst_isolation::each_element_is_isolated_by_itself()
{
    MO_ElementModule& first = addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    MO_ElementModule& second = addSelected({"leg"});
    QVERIFY(!_isolation->isIsolated(&second));
    QVERIFY(_isolation->toggle());
    QVERIFY(_isolation->isIsolated(&first));
    QVERIFY(_isolation->isIsolated(&second));
    QVERIFY(settingsOf(second) == (Settings{{1, records({{"body", hidden}, {"arm", off}})}}));
    _stage->select({&first});
    QVERIFY(_isolation->toggle());
    QVERIFY(!_isolation->isIsolated(&first));
    QVERIFY(settingsOf(first).empty());
    QVERIFY(_isolation->isIsolated(&second));
    QVERIFY(settingsOf(second) == (Settings{{1, records({{"body", hidden}, {"arm", off}})}}));
}

void tst_isolation::works_on_the_element_that_was_selected_first()
{
    MO_ElementModule& first = addSelected({});
    MO_ElementModule& second = _stage->addElement(QStringLiteral("other"));
    _stage->select({&second, &first});
    _stage->subSelect(first, {"leg"});
    _stage->subSelect(second, {"arm"});
    QCOMPARE(_isolation->selectedElement(), &second);
    QVERIFY(_isolation->toggle());
    QVERIFY(_isolation->isIsolated(&second));
    QVERIFY(!_isolation->isIsolated(&first));
    QVERIFY(settingsOf(first).empty());
}

void tst_isolation::changes_the_settings_that_hold_at_the_frame()
{
    MO_ElementModule& robot = addSelected({"arm"});
    const AT_ModelData legOff = records({{"leg", off}});
    const AT_ModelData handOff = records({{"hand", off}});
    const AT_ModelData bodyHidden = records({{"body", hidden}});
    set(robot, 1, legOff);
    set(robot, 5, handOff);
    set(robot, 10, bodyHidden);
    _stage->goToFrame(7);
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) ==
            (Settings{{1, legOff},
                      {5, records({{"hand", off}, {"body", hidden}, {"leg", off}})},
                      {10, bodyHidden}}));
}

void tst_isolation::comes_back_at_the_frame_that_was_changed()
{
    MO_ElementModule& robot = addSelected({"arm"});
    const AT_ModelData legOff = records({{"leg", off}});
    const AT_ModelData handOff = records({{"hand", off}});
    set(robot, 1, legOff);
    set(robot, 5, handOff);
    _stage->goToFrame(4);
    QVERIFY(_isolation->toggle());
    _stage->goToFrame(12);
    QVERIFY(_isolation->isIsolated(&robot));
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) == (Settings{{1, legOff}, {5, handOff}}));
}

void tst_isolation::settings_before_the_first_hold_from_the_first_frame()
{
    MO_ElementModule& robot = addSelected({"arm"});
    const AT_ModelData later = records({{"leg", off}});
    set(robot, 9, later);
    _stage->goToFrame(3);
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) == (Settings{{1, armAlone()}, {9, later}}));
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) == (Settings{{9, later}}));
}

void tst_isolation::all_drawings_of_an_element_share_the_settings()
{
    MO_ElementModule& robot = addSelected({});
    robot.exposeModel(11, 20, ModelBuilder::model(shapedKey("wing")));
    select(robot, {"wing", "arm"});
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) == (Settings{{1, armAlone()}}));
    _stage->goToFrame(15);
    QVERIFY(_isolation->isIsolated(&robot));
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
}

void tst_isolation::nothing_selected_is_nothing_to_do()
{
    const MO_ElementModule& robot = _stage->addElement(QStringLiteral("robot"));
    QVERIFY(!_isolation->selectedElement());
    QVERIFY(!_isolation->canToggle());
    QVERIFY(!_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
    QVERIFY(!_isolation->isIsolated(nullptr));
    QVERIFY(!_isolation->isIsolated(&robot));
    QCOMPARE(history().count(), 0);
}

void tst_isolation::an_element_without_selected_subnodes_is_nothing_to_do()
{
    const MO_ElementModule& robot = addSelected({});
    QCOMPARE(_isolation->selectedElement(), &robot);
    QVERIFY(!_isolation->canToggle());
    QVERIFY(!_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
    QCOMPARE(history().count(), 0);
}

void tst_isolation::a_node_that_is_no_element_is_nothing_to_do()
{
    MO_ElementModule& robot = _stage->addElement(QStringLiteral("robot"));
    MO_Node& peg = _stage->addPeg(QStringLiteral("peg"));
    _stage->select({&peg, &robot});
    _stage->subSelect(robot, {"arm"});
    QVERIFY(!_isolation->selectedElement());
    QVERIFY(!_isolation->canToggle());
    QVERIFY(!_isolation->toggle());
    QCOMPARE(history().count(), 0);
}

void tst_isolation::a_locked_element_is_not_isolated()
{
    MO_ElementModule& robot = addSelected({"arm"});
    robot.setEditable(false);
    QVERIFY(!_isolation->canToggle());
    QVERIFY(!_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
    QCOMPARE(history().count(), 0);
    robot.setEditable(true);
    QVERIFY(_isolation->canToggle());
}

void tst_isolation::an_element_locked_meanwhile_can_be_left()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    robot.setEditable(false);
    QVERIFY(_isolation->canToggle());
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
    QVERIFY(!_isolation->canToggle());
}

void tst_isolation::a_frame_without_a_model_is_nothing_to_do()
{
    MO_ElementModule& robot = addSelected({"arm"});
    _stage->goToFrame(2000);
    QVERIFY(!_isolation->toggle());
    QVERIFY(!_isolation->isIsolated(&robot));
    QVERIFY(settingsOf(robot).empty());
    QCOMPARE(history().count(), 0);
    QVERIFY(!_isolation->canToggle());
}

void tst_isolation::an_empty_model_is_nothing_to_do()
{
    MO_ElementModule& robot = addSelected({"arm"});
    robot.exposeModel(11, 20, ModelBuilder::emptyModel());
    _stage->goToFrame(15);
    QVERIFY(!_isolation->toggle());
    QVERIFY(!_isolation->isIsolated(&robot));
    QVERIFY(settingsOf(robot).empty());
    QCOMPARE(history().count(), 0);
    QVERIFY(!_isolation->canToggle());
}

void tst_isolation::a_model_without_the_selected_subnodes_is_nothing_to_do()
{
    MO_ElementModule& robot = addSelected({"arm"});
    robot.exposeModel(11, 20, ModelBuilder::model(shapedKey("wing")));
    _stage->goToFrame(15);
    QVERIFY(!_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
    QCOMPARE(history().count(), 0);
    QVERIFY(!_isolation->canToggle());
}

QTEST_MAIN(tst_isolation)
#include "tst_isolation.moc"
