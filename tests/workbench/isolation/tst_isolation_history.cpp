// SPDX-License-Identifier: MIT

#include "host/models/AT_ModelCmds.h"
#include "host/scene/MO_GroupModule.h"
#include "tests/workbench/isolation/IsolationTest.h"

using namespace SubnodeRecords;

class tst_isolation_history : public IsolationTest
{
    Q_OBJECT

private slots:
    void init() { openStage(); }
    void cleanup() { closeStage(); }
    void every_state_comes_back_data();
    void every_state_comes_back();
    void can_be_left_after_undo_and_redo();
    void can_be_entered_anew_after_undo();
    void undoing_the_leaving_isolates_again();
    void steps_of_several_elements_do_not_touch_each_other();
    void changes_made_meanwhile_stay();
    void settings_removed_meanwhile_come_back();
    void the_history_outlives_the_isolation();
    void an_element_that_is_gone_is_no_longer_isolated();
    void undo_after_an_element_is_gone_does_nothing();
    void an_element_that_comes_back_is_isolated_still();
    void another_scene_starts_without_any();
};

void tst_isolation_history::every_state_comes_back_data()
{
    QTest::addColumn<bool>("hasSettings");
    QTest::newRow("none at first") << false;
    QTest::newRow("some at first") << true;
}

void tst_isolation_history::every_state_comes_back()
{
    QFETCH(const bool, hasSettings);
    MO_ElementModule& robot = addSelected({"arm"});
    if (hasSettings)
        set(robot, 1, records({{"hand", off}, {"leg", movable}}));

    std::vector<std::pair<Settings, bool>> states;
    const auto state = [&] { return std::pair(settingsOf(robot), _isolation->isIsolated(&robot)); };
    states.push_back(state());
    for (int i = 0; i < 4; ++i) {
        QVERIFY(_isolation->toggle());
        states.push_back(state());
        QCOMPARE(states.back().second, i % 2 == 0);
    }
    QCOMPARE(history().count(), 4);
    QVERIFY(states.at(0) == states.at(2));
    QVERIFY(states.at(0) == states.at(4));
    QVERIFY(states.at(1) == states.at(3));
    for (const int index : {3, 4, 2, 0, 1, 2, 3, 1, 0, 4, 0, 4}) {
        history().setIndex(index);
        QVERIFY(state() == states.at(static_cast<std::size_t>(index)));
    }
}

void tst_isolation_history::can_be_left_after_undo_and_redo()
{
    MO_ElementModule& robot = addSelected({"arm"});
    const AT_ModelData before = records({{"hand", off}});
    set(robot, 1, before);
    QVERIFY(_isolation->toggle());
    history().undo();
    history().redo();
    QVERIFY(_isolation->isIsolated(&robot));
    QVERIFY(_isolation->toggle());
    QVERIFY(!_isolation->isIsolated(&robot));
    QVERIFY(settingsOf(robot) == (Settings{{1, before}}));
}

void tst_isolation_history::can_be_entered_anew_after_undo()
{
    MO_ElementModule& robot = addSelected({"leg"});
    QVERIFY(_isolation->toggle());
    history().undo();
    QVERIFY(settingsOf(robot).empty());
    robot.selInterface()->clearSubSelection();
    _stage->subSelect(robot, {"arm"});
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) == (Settings{{1, armAlone()}}));
    QCOMPARE(history().count(), 1);
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
}

void tst_isolation_history::undoing_the_leaving_isolates_again()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    QVERIFY(_isolation->toggle());
    history().undo();
    QVERIFY(_isolation->isIsolated(&robot));
    QVERIFY(settingsOf(robot) == (Settings{{1, armAlone()}}));
    QVERIFY(_isolation->toggle());
    QVERIFY(!_isolation->isIsolated(&robot));
    QVERIFY(settingsOf(robot).empty());
}

void tst_isolation_history::steps_of_several_elements_do_not_touch_each_other()
{
    MO_ElementModule& first = addSelected({"arm"});
    MO_ElementModule& second = _stage->addElement(QStringLiteral("other"));
    QVERIFY(_isolation->toggle());
    select(second, {"leg"});
    QVERIFY(_isolation->toggle());
    _stage->select({&first});
    QVERIFY(_isolation->toggle());

    history().undo();
    QVERIFY(_isolation->isIsolated(&first));
    QVERIFY(_isolation->isIsolated(&second));
    history().undo();
    QVERIFY(_isolation->isIsolated(&first));
    QVERIFY(!_isolation->isIsolated(&second));
    QVERIFY(settingsOf(first) == (Settings{{1, armAlone()}}));
    QVERIFY(settingsOf(second).empty());
    history().undo();
    QVERIFY(!_isolation->isIsolated(&first));
    history().setIndex(3);
    QVERIFY(!_isolation->isIsolated(&first));
    QVERIFY(_isolation->isIsolated(&second));
    QVERIFY(settingsOf(first).empty());
}

void tst_isolation_history::changes_made_meanwhile_stay()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    auto* command = new AT_ModelCmds::insertNodeDataCmd(&robot, robot.seqMeta(1));
    command->addData(keyOf("hand"), movable);
    command->addData(keyOf("leg"), offAndMovable);
    QVERIFY(context().commandManager()->execute(command, QStringLiteral("move")));
    QVERIFY(_isolation->toggle());
    const Settings left{{1, records({{"hand", movable}, {"leg", movable}})}};
    QVERIFY(settingsOf(robot) == left);
    history().setIndex(0);
    QVERIFY(settingsOf(robot).empty());
    QVERIFY(!_isolation->isIsolated(&robot));
    history().setIndex(3);
    QVERIFY(settingsOf(robot) == left);
}

void tst_isolation_history::settings_removed_meanwhile_come_back()
{
    MO_ElementModule& robot = addSelected({"arm"});
    const AT_ModelData before = records({{"hand", off}});
    set(robot, 1, before);
    QVERIFY(_isolation->toggle());
    robot.setSeqMeta(1, nullptr);
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) == (Settings{{1, before}}));
    history().undo();
    QVERIFY(settingsOf(robot).empty());
    QVERIFY(_isolation->isIsolated(&robot));
}

void tst_isolation_history::the_history_outlives_the_isolation()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    _isolation.reset();
    history().undo();
    QVERIFY(settingsOf(robot).empty());
    history().redo();
    QVERIFY(settingsOf(robot) == (Settings{{1, armAlone()}}));
}

void tst_isolation_history::an_element_that_is_gone_is_no_longer_isolated()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    _stage->remove(robot);
    QVERIFY(!_isolation->selectedElement());
    QVERIFY(!_isolation->canToggle());
    QVERIFY(!_isolation->toggle());
    // A later element may well lie where the other one was.
    MO_ElementModule& next = addSelected({"leg"});
    QVERIFY(!_isolation->isIsolated(&next));
    QVERIFY(_isolation->toggle());
    QVERIFY(_isolation->isIsolated(&next));
}

void tst_isolation_history::undo_after_an_element_is_gone_does_nothing()
{
    MO_ElementModule& robot = addSelected({"arm"});
    MO_ElementModule& other = _stage->addElement(QStringLiteral("other"));
    QVERIFY(_isolation->toggle());
    QVERIFY(_isolation->toggle());
    _stage->remove(robot);
    while (history().canUndo())
        history().undo();
    while (history().canRedo())
        history().redo();
    QVERIFY(settingsOf(other).empty());
    QVERIFY(!_isolation->isIsolated(&other));
}

void tst_isolation_history::an_element_that_comes_back_is_isolated_still()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    std::unique_ptr<MO_Node> taken = _stage->scene().rootGroup()->takeNode(&robot);
    _stage->notify();
    QVERIFY(!_isolation->canToggle());
    _stage->scene().rootGroup()->insertNode(std::move(taken));
    _stage->select({&robot});
    QVERIFY(_isolation->isIsolated(&robot));
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot).empty());
}

void tst_isolation_history::another_scene_starts_without_any()
{
    addSelected({"arm"});
    QVERIFY(_isolation->toggle());
    _stage->session().openScene(QStringLiteral("next"));
    QVERIFY(!_isolation->selectedElement());
    QVERIFY(!_isolation->canToggle());
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(!_isolation->isIsolated(&robot));
    QVERIFY(_isolation->toggle());
    QVERIFY(settingsOf(robot) == (Settings{{1, armAlone()}}));
    QCOMPARE(history().count(), 1);
    _stage->session().closeScene();
    QVERIFY(!_isolation->canToggle());
    QVERIFY(!_isolation->toggle());
}

QTEST_MAIN(tst_isolation_history)
#include "tst_isolation_history.moc"
