// SPDX-License-Identifier: MIT

#include "workbench/isolation/IsolationResponder.h"

#include "host/actions/AC_ActionInfo.h"
#include "host/actions/AC_Manager.h"
#include "tests/workbench/isolation/IsolationTest.h"

class tst_isolation_responder : public IsolationTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void the_action_isolates_and_comes_back();
    void is_enabled_where_there_is_something_to_do();
    void is_checked_while_the_selected_element_is_isolated();
    void follows_undo_and_redo();
    void an_action_that_is_not_available_does_nothing();
    void leaves_the_manager_when_it_dies();

private:
    bool perform()
    {
        AC_ActionInfo info("onActionIsolate", AC_ActionInfo::ePerform);
        return context().actionManager()->routeToAny(info);
    }
    /// Whether it is enabled, and whether it is checked, by the validator alone: it must not depend
    /// on how the action presented itself before.
    std::pair<bool, bool> presented()
    {
        std::vector<std::pair<bool, bool>> all;
        for (const bool before : {false, true}) {
            AC_ActionInfo info("onActionIsolate", AC_ActionInfo::eValidate);
            info.setEnabled(before);
            info.setChecked(before);
            if (!context().actionManager()->routeToAny(info) || !info.isChecked())
                QTest::qFail("The action is not validated.", __FILE__, __LINE__);
            all.emplace_back(info.isEnabled(), info.isChecked().value_or(false));
        }
        if (all.front() != all.back())
            QTest::qFail("The validator leaves the action as it is.", __FILE__, __LINE__);
        return all.front();
    }

    const std::pair<bool, bool> _unavailable{false, false};
    const std::pair<bool, bool> _available{true, false};
    const std::pair<bool, bool> _isolated{true, true};
    std::unique_ptr<IsolationResponder> _responder;
};

void tst_isolation_responder::init()
{
    openStage();
    _responder = std::make_unique<IsolationResponder>(_stage->session(), nullptr);
}

void tst_isolation_responder::cleanup()
{
    _responder.reset();
    closeStage();
}

void tst_isolation_responder::the_action_isolates_and_comes_back()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(perform());
    QVERIFY(_responder->isolation().isIsolated(&robot));
    QVERIFY(settingsOf(robot) == (Settings{{1, armAlone()}}));
    QVERIFY(perform());
    QVERIFY(!_responder->isolation().isIsolated(&robot));
    QVERIFY(settingsOf(robot).empty());
    QCOMPARE(history().count(), 2);
}

void tst_isolation_responder::is_enabled_where_there_is_something_to_do()
{
    QCOMPARE(presented(), _unavailable);
    MO_ElementModule& robot = addSelected({});
    QCOMPARE(presented(), _unavailable);
    _stage->subSelect(robot, {"arm"});
    QCOMPARE(presented(), _available);
    robot.setEditable(false);
    QCOMPARE(presented(), _unavailable);
    robot.setEditable(true);
    robot.selInterface()->clearSubSelection();
    QCOMPARE(presented(), _unavailable);
}

void tst_isolation_responder::is_checked_while_the_selected_element_is_isolated()
{
    MO_ElementModule& robot = addSelected({"arm"});
    QVERIFY(perform());
    QCOMPARE(presented(), _isolated);
    robot.selInterface()->clearSubSelection();
    QCOMPARE(presented(), _isolated);
    MO_ElementModule& other = addSelected({"leg"});
    QCOMPARE(presented(), _available);
    _stage->select({});
    QCOMPARE(presented(), _unavailable);
    _stage->select({&robot, &other});
    QCOMPARE(presented(), _isolated);
    QVERIFY(perform());
    QCOMPARE(presented(), _unavailable);
}

void tst_isolation_responder::follows_undo_and_redo()
{
    addSelected({"arm"});
    QVERIFY(perform());
    history().undo();
    QCOMPARE(presented(), _available);
    history().redo();
    QCOMPARE(presented(), _isolated);
}

void tst_isolation_responder::an_action_that_is_not_available_does_nothing()
{
    const MO_ElementModule& robot = addSelected({});
    perform();
    QVERIFY(settingsOf(robot).empty());
    QCOMPARE(history().count(), 0);
}

void tst_isolation_responder::leaves_the_manager_when_it_dies()
{
    addSelected({"arm"});
    _responder.reset();
    QVERIFY(!perform());
    QCOMPARE(history().count(), 0);
}

QTEST_MAIN(tst_isolation_responder)
#include "tst_isolation_responder.moc"
