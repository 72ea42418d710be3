// SPDX-License-Identifier: MIT

#include "tests/responder/ResponderTest.h"

namespace {

const QString arm = QStringLiteral("arm");
const QString hand = QStringLiteral("hand");
const QString leg = QStringLiteral("leg");

} // namespace

/// Switching subnodes and their shapes on and off.
class tst_GT_Visibility : public ResponderTest
{
    Q_OBJECT

private:
    static QList<QByteArray> switches()
    {
        return {enableAction, disableAction, showAction, hideAction};
    }
    /// Adds a record at a frame.
    static void setRecord(MO_ElementModule& element, const QString& name, bool visible,
                          bool localVisible, int frame = 1)
    {
        const AT_ModelData* held = element.seqMeta(frame);
        auto data = held ? std::make_unique<AT_ModelData>(*held) : std::make_unique<AT_ModelData>();
        const AT_ModelNodeData* existing = data->nodeData(AT_ModelNodeKey(name));
        AT_ModelNodeData record = existing ? *existing : AT_ModelNodeData();
        record.visible = visible;
        record.localVisible = localVisible;
        data->setNodeData(AT_ModelNodeKey(name), record);
        element.setSeqMeta(frame, std::move(data));
    }

private slots:
    void each_action_makes_one_step_of_its_name_data()
    {
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* tag, const QByteArray& action, const char* before,
                            const char* after, const char* name) {
            QTest::newRow(tag) << action << before << after << name;
        };
        // One that is taken away gives the other one back.
        row("enabling", enableAction, "off", "", "Enable Subnode");
        row("enabling a hidden one", enableAction, "off hidden", " hidden", "Enable Subnode");
        row("disabling", disableAction, "", " off", "Disable Subnode");
        row("disabling a hidden one", disableAction, "hidden", " off", "Disable Subnode");
        row("showing", showAction, "hidden", "", "Show Subnode Shape");
        row("showing a disabled one", showAction, "off hidden", " off", "Show Subnode Shape");
        row("hiding", hideAction, "", " hidden", "Hide Subnode Shape");
        row("hiding a disabled one", hideAction, "off", " hidden", "Hide Subnode Shape");
    }
    void each_action_makes_one_step_of_its_name()
    {
        QFETCH(const QByteArray, action);
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        QFETCH(const QString, name);
        MO_ElementModule& element = addSelected();
        setRecord(element, hand, !before.contains("off"), !before.contains("hidden"));
        subSelectOnly(element, {hand});
        const QString start = state();
        QVERIFY(isEnabled(action));
        QCOMPARE(state(), start);
        QCOMPARE(run(action), AC_Performed);
        const QString end = state();
        QCOMPARE(settings(element), hand + after);
        QCOMPARE(subSelected(element), QStringList{hand});
        QVERIFY(!isEnabled(action));
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), name);
        for (int round = 0; round < 2; ++round) {
            history().undo();
            QCOMPARE(state(), start);
            QVERIFY(isEnabled(action));
            history().redo();
            QCOMPARE(state(), end);
        }
    }

    void undoing_leaves_no_settings_where_there_were_none()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {hand, arm});
        for (const QByteArray& action : {disableAction, hideAction}) {
            run(action);
            QVERIFY(element.seqMeta(1));
            history().undo();
            QVERIFY(!element.seqMeta(1));
        }
    }

    void all_sub_selected_subnodes_are_switched_and_no_others()
    {
        MO_ElementModule& element = addSelected();
        setRecord(element, leg, false, true);
        subSelectOnly(element, {hand, arm});
        run(disableAction);
        QCOMPARE(settings(element), QStringLiteral("arm off, hand off, leg off"));
        run(hideAction);
        QCOMPARE(settings(element), QStringLiteral("arm hidden, hand hidden, leg off"));
        run(showAction);
        QCOMPARE(settings(element), QStringLiteral("arm, hand, leg off"));
        subSelectOnly(element, {leg});
        run(enableAction);
        QCOMPARE(settings(element), QStringLiteral("arm, hand, leg"));
        QCOMPARE(history().count(), 4);
    }

    void subnodes_in_different_states_can_be_switched_both_ways()
    {
        MO_ElementModule& element = addSelected();
        setRecord(element, hand, false, true);
        for (const QStringList& order : {QStringList{arm, hand}, QStringList{hand, arm}}) {
            subSelectOnly(element, order);
            QCOMPARE(enabledOf(switches()),
                     QList<QByteArray>({enableAction, disableAction, hideAction}));
        }
        setRecord(element, arm, true, false);
        subSelectOnly(element, {arm, hand});
        QCOMPARE(enabledOf(switches()), switches());
        run(disableAction);
        QCOMPARE(settings(element), QStringLiteral("arm off, hand off"));
        history().undo();
        QCOMPARE(settings(element), QStringLiteral("arm hidden, hand off"));
        run(hideAction);
        QCOMPARE(settings(element), QStringLiteral("arm hidden, hand hidden"));
        history().undo();
        run(enableAction);
        QCOMPARE(settings(element), QStringLiteral("arm hidden, hand"));
        history().undo();
        run(showAction);
        QCOMPARE(settings(element), QStringLiteral("arm, hand off"));
    }

    void offered_is_what_would_change_something_data()
    {
        QTest::addColumn<bool>("visible");
        QTest::addColumn<bool>("localVisible");
        QTest::newRow("as modelled") << true << true;
        QTest::newRow("shape hidden") << true << false;
        QTest::newRow("disabled") << false << true;
        QTest::newRow("both") << false << false;
    }
    void offered_is_what_would_change_something()
    {
        QFETCH(const bool, visible);
        QFETCH(const bool, localVisible);
        MO_ElementModule& element = addSelected();
        setRecord(element, hand, visible, localVisible);
        subSelectOnly(element, {hand});
        QCOMPARE(isEnabled(enableAction), !visible);
        QCOMPARE(isEnabled(disableAction), visible);
        QCOMPARE(isEnabled(showAction), !localVisible);
        QCOMPARE(isEnabled(hideAction), localVisible);
        for (const bool asked : {false, true}) {
            QCOMPARE(_responder->selectedSubnodesShareVisibilityState(asked), visible != asked);
            QCOMPARE(_responder->selectedSubnodesShareLocalVisibilityState(asked),
                     localVisible != asked);
        }
        // The state of what is above or below does not matter.
        subSelectOnly(element, {arm});
        QCOMPARE(enabledOf(switches()), QList<QByteArray>({disableAction, hideAction}));
    }

    void what_changes_nothing_makes_no_step()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {hand, arm});
        const QString fresh = state();
        run(enableAction);
        run(showAction);
        QCOMPARE(state(), fresh);
        QCOMPARE(history().count(), 0);
        for (const QByteArray& action : {disableAction, hideAction}) {
            run(action);
            const QString before = state();
            const int steps = history().count();
            run(action);
            QCOMPARE(state(), before);
            QCOMPARE(history().count(), steps);
        }
    }

    void a_step_may_only_give_the_other_flag_back()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {hand});
        for (const QByteArray& action : {disableAction, hideAction}) {
            setRecord(element, hand, false, false);
            QVERIFY(!isEnabled(action));
            run(action);
            QCOMPARE(settings(element), action == disableAction ? QStringLiteral("hand off")
                                                                : QStringLiteral("hand hidden"));
            QCOMPARE(history().count(), 1);
            history().undo();
            QCOMPARE(settings(element), QStringLiteral("hand off hidden"));
        }
    }

    void without_sub_selection_nothing_is_offered_or_recorded()
    {
        MO_ElementModule& element = addSelected();
        setRecord(element, hand, false, false);
        const QString before = state();
        QCOMPARE(enabledOf(switches()), {});
        for (const QByteArray& action : switches())
            run(action);
        for (const bool visible : {false, true}) {
            QVERIFY(!_responder->selectedSubnodesShareVisibilityState(visible));
            QVERIFY(!_responder->selectedSubnodesShareLocalVisibilityState(visible));
        }
        QCOMPARE(state(), before);
        QCOMPARE(history().count(), 0);
    }

    void only_the_element_that_was_selected_first_is_switched()
    {
        MO_ElementModule& robot = addSelected();
        MO_ElementModule& other = _stage->addElement(QStringLiteral("other"));
        _stage->select({&robot, &other});
        _stage->subSelect(robot, {hand});
        _stage->subSelect(other, {leg});
        run(disableAction);
        QCOMPARE(settings(robot), QStringLiteral("hand off"));
        QCOMPARE(settings(other), QStringLiteral("none"));
    }

    void settings_are_keyed_at_the_current_frame_alone()
    {
        MO_ElementModule& element = addSelected();
        setRecord(element, arm, true, false, 2);
        setRecord(element, leg, false, true, 8);
        subSelectOnly(element, {hand});
        const QString start = keyedSettings(element);
        QCOMPARE(start, QStringLiteral("2: arm hidden; 8: arm hidden, leg off"));
        _stage->goToFrame(5);
        run(disableAction);
        QCOMPARE(keyedSettings(element),
                 QStringLiteral("2: arm hidden; 5: arm hidden, hand off; 8: arm hidden, leg off"));
        QCOMPARE(enabledOf(switches()), QList<QByteArray>({enableAction, hideAction}));
        // The same in place of what is keyed there already.
        _stage->goToFrame(8);
        QCOMPARE(enabledOf(switches()), QList<QByteArray>({disableAction, hideAction}));
        run(hideAction);
        QCOMPARE(keyedSettings(element), QStringLiteral("2: arm hidden; 5: arm hidden, hand off; "
                                                        "8: arm hidden, hand hidden, leg off"));
        // Where nothing is keyed before, other frames stay as modelled.
        _stage->goToFrame(1);
        run(enableAction);
        QCOMPARE(history().count(), 2);
        // Going elsewhere does not change what is undone.
        _stage->goToFrame(11);
        history().undo();
        history().undo();
        QCOMPARE(keyedSettings(element), start);
    }

    void a_frame_without_a_model_keeps_settings_too()
    {
        MO_ElementModule& element = addSelected();
        element.exposeModel(4, 6, CEL_SharedPtr<TD_CelVq3d>());
        subSelectOnly(element, {hand});
        _stage->goToFrame(5);
        QCOMPARE(enabledOf(switches()), QList<QByteArray>({disableAction, hideAction}));
        run(disableAction);
        QCOMPARE(keyedSettings(element), QStringLiteral("5: hand off"));
    }

    void other_settings_of_a_subnode_stay()
    {
        MO_ElementModule& element = addSelected();
        AT_ModelNodeData record;
        record.hasTransformation = true;
        record.transformation.setTranslate(1, 2, 3);
        auto data = std::make_unique<AT_ModelData>();
        data->setNodeData(AT_ModelNodeKey(hand), record);
        element.setSeqMeta(1, std::move(data));
        subSelectOnly(element, {hand});
        const AT_ModelNodeData before = record;
        for (const QByteArray& action : {disableAction, hideAction, showAction}) {
            run(action);
            record = *element.seqMeta(1)->nodeData(AT_ModelNodeKey(hand));
            QCOMPARE(record.visible, action != disableAction);
            QCOMPARE(record.localVisible, action != hideAction);
            QVERIFY(record.hasTransformation);
            QVERIFY(record.transformation == before.transformation);
        }
        QVERIFY(record == before);
    }

    void the_change_is_told()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {hand});
        QSignalSpy told(_stage->context().changeManager(), &TUSceneChangeManager::nodesChanged);
        for (const QByteArray& action : {hideAction, showAction, disableAction, enableAction}) {
            told.clear();
            run(action);
            QVERIFY(!told.isEmpty());
        }
        told.clear();
        run(enableAction);
        QVERIFY(told.isEmpty());
    }
};

QTEST_MAIN(tst_GT_Visibility)
#include "tst_GT_Visibility.moc"
