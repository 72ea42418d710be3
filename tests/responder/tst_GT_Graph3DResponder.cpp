// SPDX-License-Identifier: MIT

#include "host/actions/AC_Manager.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/services/PLUG_Services.h"
#include "tests/responder/ResponderTest.h"

#include <QEvent>
#include <QMetaMethod>
#include <vector>

namespace {

using Responders = std::vector<AC_Responder*>;

const QString identity = QStringLiteral("graph3dresponder");

/// Would take every event, if it was asked.
class GreedyResponder : public GT_Graph3DResponder
{
public:
    using GT_Graph3DResponder::GT_Graph3DResponder;

    bool event(QEvent*) override { return true; }
};

/// Has a responder above it.
class NestedResponder : public GT_Graph3DResponder
{
public:
    explicit NestedResponder(AC_Responder* above)
        : GT_Graph3DResponder(nullptr, nullptr)
        , _above(above)
    {
    }

    AC_Responder* parentResponder() override { return _above; }

private:
    AC_Responder* _above;
};

/// Notes what it is asked, and answers as if an event was accepted.
class NotingResponder : public AC_ResponderTemplate
{
public:
    NotingResponder()
        : AC_ResponderTemplate(QStringLiteral("noting"))
    {
    }

    AC_Result perform(AC_ActionInfo* info) override
    {
        asked.append(info->slotName());
        return AC_EventAccepted;
    }

    QList<QByteArray> asked;
};

} // namespace

/// What makes it a responder, and what it answers where something is missing.
class tst_GT_Graph3DResponder : public ResponderTest
{
    Q_OBJECT

private:
    QStringList keyAnswers()
    {
        return {_responder->getSelectedParentNodeKey(), _responder->getFirstSelectedChildNodeKey(),
                _responder->getSelectedNextSiblingNodeKey(),
                _responder->getSelectedPreviousSiblingNodeKey()};
    }
    /// Runs everything there is.
    void runAll()
    {
        for (const QByteArray& action : allActions())
            QCOMPARE(run(action), AC_Performed);
        _responder->selectSubnode(QStringLiteral("body"));
        for (const bool visible : {false, true}) {
            _responder->setSubnodeVisibility(visible);
            _responder->setSubnodeLocalVisibility(visible);
        }
        _responder->subSelectionHasChanged();
    }

private slots:
    void it_is_known_by_its_identity_and_object_name()
    {
        QCOMPARE(_responder->responderIdentity(), identity);
        QCOMPARE(_responder->objectName(), identity);
        QCOMPARE(_responder->parentResponder(), nullptr);
    }

    void it_registers_with_the_manager_of_the_services_whatever_it_is_given()
    {
        AC_Manager* manager = PLUG_Services::getActionManager();
        QCOMPARE(_responder->actionManager(), manager);
        AC_Manager other;
        GT_Graph3DResponder given(&other, nullptr);
        QCOMPARE(given.actionManager(), manager);
        QVERIFY(other.responders(identity).empty());
        QCOMPARE(manager->responders(identity), (Responders{_responder.get(), &given}));
    }

    void it_leaves_the_manager_when_its_parent_dies()
    {
        _responder.reset();
        auto parent = std::make_unique<QObject>();
        auto* responder = new GT_Graph3DResponder(nullptr, parent.get());
        AC_Manager* manager = PLUG_Services::getActionManager();
        QCOMPARE(responder->parent(), parent.get());
        QCOMPARE(manager->responders(identity), Responders{responder});
        parent.reset();
        QVERIFY(manager->responders(identity).empty());
    }

    void the_manager_routes_actions_to_it_without_any_focus()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {QStringLiteral("hand")});
        AC_ActionInfo info(parentAction, AC_ActionInfo::ePerform);
        QVERIFY(PLUG_Services::getActionManager()->route(identity, info));
        QCOMPARE(subSelected(element), QStringList{QStringLiteral("arm")});
        QCOMPARE(info.responder(), _responder.get());
    }

    void it_answers_as_a_responder_when_asked_by_name()
    {
        QObject* object = _responder.get();
        AC_Responder* responder = _responder.get();
        AC_ResponderTemplate* part = _responder.get();
        QCOMPARE(object->qt_metacast("AC_Responder"), static_cast<void*>(part));
        QCOMPARE(qobject_cast<AC_Responder*>(object), responder);
        QCOMPARE(object->qt_metacast("QObject"), static_cast<void*>(object));
        QCOMPARE(object->qt_metacast("AC_Manager"), nullptr);
        QCOMPARE(object->qt_metacast(nullptr), nullptr);
    }

    void its_slots_are_the_actions_each_followed_by_its_validator()
    {
        const QMetaObject* meta = _responder->metaObject();
        QCOMPARE(meta->className(), "GT_Graph3DResponder");
        QList<QByteArray> expected;
        for (const QByteArray& action : allActions())
            expected << action + "()" << action + "Validate(AC_ActionInfo*)";
        QList<QByteArray> found;
        for (int ix = meta->methodOffset(); ix < meta->methodCount(); ++ix) {
            QCOMPARE(meta->method(ix).methodType(), QMetaMethod::Slot);
            found << meta->method(ix).methodSignature();
        }
        QCOMPARE(found, expected);
        QCOMPARE(found.size(), 22);
    }

    void an_event_is_accepted_only_if_it_is_recognised_and_accepted()
    {
        QEvent unknown(QEvent::Show);
        QCOMPARE(_responder->handleEvent(&unknown), AC_NotHandled);
        // Events of the application's own are recognised by every object.
        QEvent own(QEvent::User);
        QCOMPARE(_responder->handleEvent(&own), AC_EventAccepted);
        own.ignore();
        QCOMPARE(_responder->handleEvent(&own), AC_NotHandled);
        QEvent recognised(QEvent::ThreadChange);
        QCOMPARE(_responder->handleEvent(&recognised), AC_EventAccepted);
        recognised.ignore();
        QCOMPARE(_responder->handleEvent(&recognised), AC_NotHandled);
        // What a derived class makes of events does not count.
        GreedyResponder greedy(nullptr, nullptr);
        QCOMPARE(greedy.handleEvent(&unknown), AC_NotHandled);
    }

    void performing_tells_the_action_who_performs_it()
    {
        AC_ActionInfo performed(parentAction, AC_ActionInfo::ePerform);
        QCOMPARE(_responder->perform(&performed), AC_Performed);
        QCOMPARE(performed.responder(), _responder.get());
        AC_ActionInfo down(parentAction, AC_ActionInfo::ePerform);
        QCOMPARE(_responder->performDownToChildren(&down), AC_Performed);
        QCOMPARE(down.responder(), nullptr);
    }

    void performing_down_to_children_does_the_same()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {QStringLiteral("hand")});
        AC_ActionInfo info(parentAction, AC_ActionInfo::ePerform);
        QCOMPARE(_responder->performDownToChildren(&info), AC_Performed);
        QCOMPARE(subSelected(element), QStringList{QStringLiteral("arm")});
    }

    void what_is_no_slot_is_not_handled()
    {
        for (const char* name : {"", "onActionUnknown", "onactionselectparent", "selectSubnode",
                                 "onActionSelectParent()"}) {
            AC_ActionInfo info(name, AC_ActionInfo::ePerform);
            QCOMPARE(_responder->perform(&info), AC_NotHandled);
            QCOMPARE(_responder->performDownToChildren(&info), AC_NotHandled);
            AC_ActionInfo validation(name, AC_ActionInfo::eValidate);
            QCOMPARE(_responder->perform(&validation), AC_NotHandled);
        }
    }

    void only_what_it_does_not_know_goes_to_the_responder_above()
    {
        NotingResponder above;
        NestedResponder nested(&above);
        AC_ActionInfo known(parentAction, AC_ActionInfo::ePerform);
        QCOMPARE(nested.perform(&known), AC_Performed);
        QVERIFY(above.asked.isEmpty());
        AC_ActionInfo unknown("onActionUnknown", AC_ActionInfo::ePerform);
        QCOMPARE(nested.performDownToChildren(&unknown), AC_NotHandled);
        QVERIFY(above.asked.isEmpty());
        QCOMPARE(nested.perform(&unknown), AC_EventAccepted);
        QCOMPARE(above.asked, QList<QByteArray>{"onActionUnknown"});
    }

    void without_a_session_nothing_is_offered_and_nothing_happens()
    {
        _stage.reset();
        QCOMPARE(_responder->actionManager(), nullptr);
        const GT_Graph3DResponder late(nullptr, nullptr);
        QCOMPARE(late.actionManager(), nullptr);
        QCOMPARE(keyAnswers(), QStringList({{}, {}, {}, {}}));
        QCOMPARE(enabledOf(allActions()), {});
        QVERIFY(!_responder->hasSubnodeSelected());
        QVERIFY(!_responder->appendToSelection());
        QCOMPARE(PublishedResponder::getNodeWithSubNodes(nullptr), nullptr);
        runAll();
    }

    void where_something_is_missing_nothing_is_offered_and_nothing_happens_data()
    {
        QTest::addColumn<QStringList>("selected");
        QTest::addColumn<bool>("offersDump");
        QTest::newRow("nothing selected") << QStringList() << false;
        QTest::newRow("a node without subnodes") << QStringList{"peg"} << false;
        QTest::newRow("an element behind it") << QStringList{"peg", "robot"} << false;
        QTest::newRow("no subnode") << QStringList{"robot", "other"} << true;
        QTest::newRow("an element without a model") << QStringList{"empty", "robot"} << true;
    }
    void where_something_is_missing_nothing_is_offered_and_nothing_happens()
    {
        QFETCH(const QStringList, selected);
        QFETCH(const bool, offersDump);
        _stage->addPeg(QStringLiteral("peg"));
        _stage->addElement(QStringLiteral("robot"));
        _stage->addElement(QStringLiteral("other"));
        _stage->addEmptyElement(QStringLiteral("empty"));
        std::vector<MO_Node*> nodes;
        for (const QString& name : selected) {
            for (MO_Node* node : _stage->scene().rootGroup()->nodes()) {
                if (node->instanceName() == name)
                    nodes.push_back(node);
            }
        }
        _stage->select(nodes);
        if (selected.size() == 2 && selected.back() != QLatin1String("peg"))
            _stage->subSelect(*dynamic_cast<MO_ElementModule*>(nodes.back()), {"arm"});
        QCOMPARE(keyAnswers(), QStringList({{}, {}, {}, {}}));
        QCOMPARE(enabledOf(allActions()),
                 offersDump ? QList<QByteArray>{dumpAction} : QList<QByteArray>());
        QVERIFY(!_responder->hasSubnodeSelected());
        const bool hasSubnodes =
            PublishedResponder::getNodeWithSubNodes(PLUG_Services::getSelection());
        QCOMPARE(hasSubnodes, offersDump);
        const QString before = state();
        if (selected.value(0) == QLatin1String("robot"))
            _responder->selectSubnode(QStringLiteral("body"));
        else
            runAll();
        QCOMPARE(state(), before);
        QCOMPARE(history().count(), 0);
    }

    void at_a_frame_without_a_model_there_is_nowhere_to_walk()
    {
        MO_ElementModule& element = addSelected();
        subSelectOnly(element, {QStringLiteral("arm")});
        QCOMPARE(keyAnswers(), QStringList({"body", "hand", "leg", "leg"}));
        _stage->goToFrame(lastFrame + 1);
        QCOMPARE(keyAnswers(), QStringList({{}, {}, {}, {}}));
        QCOMPARE(enabledOf(walkingActions()), {});
        const QString before = state();
        for (const QByteArray& action : walkingActions())
            run(action);
        QCOMPARE(state(), before);
        // The subnode itself is still selected.
        QVERIFY(_responder->hasSubnodeSelected());
        _stage->goToFrame(lastFrame);
        QCOMPARE(keyAnswers(), QStringList({"body", "hand", "leg", "leg"}));
    }

    void the_first_of_the_selected_counts()
    {
        MO_ElementModule& robot = addSelected();
        MO_ElementModule& other = _stage->addElement(QStringLiteral("other"));
        _stage->select({&other, &robot});
        _stage->subSelect(robot, {QStringLiteral("hand")});
        _stage->subSelect(other, {QStringLiteral("leg"), QStringLiteral("body")});
        QCOMPARE(keyAnswers(), QStringList({"body", {}, "arm", "arm"}));
        QCOMPARE(PublishedResponder::getNodeWithSubNodes(PLUG_Services::getSelection()),
                 other.selInterface());
        QVERIFY(_responder->hasSubnodeSelected());
    }
};

QTEST_MAIN(tst_GT_Graph3DResponder)
#include "tst_GT_Graph3DResponder.moc"
