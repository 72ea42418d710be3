// SPDX-License-Identifier: MIT

#include "host/commands/CO_CommandManager.h"
#include "tests/graphview/PanelTest.h"

#include <QUndoStack>

namespace {

using namespace ModelBuilder;

const QString arm = QStringLiteral("arm");
const QString hand = QStringLiteral("hand");
const QString leg = QStringLiteral("leg");

/// A controller that notes the end of each selecting gesture, and what the listeners know by then.
class NotingCtrl : public GV_GraphXViewCtrl
{
public:
    NotingCtrl(GV_GraphXViewQt* view, SC_SessionContext* session)
        : GV_GraphXViewCtrl(view, session)
        , _told(session->changeManager(), &TUSceneChangeManager::selectionChanged)
    {
    }

    void UpdateFromSelection(SL_Selection* selection) override
    {
        updates.append(QStringLiteral("%1 selected, %2 told")
                           .arg(selection->nodes().size())
                           .arg(_told.count()));
    }

    QStringList updates;

private:
    QSignalSpy _told;
};

} // namespace

/// What clicks select, and what names the tool tip tells.
class tst_GV_GraphXViewCtrlPointer : public PanelTest
{
    Q_OBJECT

private:
    QString toolTip(QPoint at)
    {
        return controller()->fullNodeNameAtModelPoint({double(at.x()), double(at.y())});
    }

private slots:
    void a_click_on_a_subnode_selects_it_and_its_element_alone()
    {
        QVERIFY(showRobots());
        _stage->select(
            {node(QStringLiteral("a")), node(QStringLiteral("b")), node(QStringLiteral("peg"))});
        _stage->subSelect(element(QStringLiteral("a")), {leg, arm});
        takeNotices();
        QCOMPARE(_mouse->press(box(hand)), View::eMouseHandled);
        _mouse->release(box(hand));
        QCOMPARE(selected(), QStringLiteral("a(hand)"));
        QCOMPARE(takeNotices(), std::pair(1, 1));
        QCOMPARE(_stage->selectedNames(), QStringList({QStringLiteral("a"), hand}));
        _mouse->click(box(arm));
        QCOMPARE(selected(), QStringLiteral("a(arm)"));
        QCOMPARE(_stage->selectedNames(), QStringList({QStringLiteral("a"), arm}));
    }

    void an_extending_click_on_a_subnode_adds_it()
    {
        QVERIFY(showRobots());
        _stage->select({node(QStringLiteral("a")), node(QStringLiteral("peg"))});
        _stage->subSelect(element(QStringLiteral("a")), {leg});
        takeNotices();
        QCOMPARE(_mouse->click(box(hand), Qt::ShiftModifier), View::eMouseHandled);
        QCOMPARE(takeNotices(), std::pair(0, 1));
        _mouse->click(box(arm), Qt::ControlModifier);
        QCOMPARE(takeNotices(), std::pair(0, 1));
        QCOMPARE(selected(), QStringLiteral("a(leg hand arm) peg()"));
        QCOMPARE(_stage->selectedNames(), QStringList({QStringLiteral("a"), arm, hand, leg}));
        // What is there already is neither moved nor taken away.
        QCOMPARE(_mouse->click(box(leg), Qt::ShiftModifier), View::eMouseHandled);
        QCOMPARE(takeNotices(), std::pair(0, 0));
        QCOMPARE(selected(), QStringLiteral("a(leg hand arm) peg()"));
    }

    void an_extending_click_on_a_subnode_of_an_unselected_element_does_nothing()
    {
        QVERIFY(showRobots());
        {
            // Nobody is told yet, so the tree is still on screen.
            const SL_Selection::BatchSelectionModeScope scope(_stage->context().selection());
            _stage->context().selection()->clear();
            QCOMPARE(_mouse->click(box(hand), Qt::ShiftModifier), View::eMouseHandled);
            QCOMPARE(selected(), QString());
        }
        QCOMPARE(selected(), QString());
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }

    void a_click_on_a_header_selects_its_element_alone()
    {
        QVERIFY(showRobots());
        QCOMPARE(_mouse->click(header(0)), View::eMouseHandled);
        QCOMPARE(selected(), QStringLiteral("a()"));
        QCOMPARE(takeNotices(), std::pair(1, 1));
        QCOMPARE(_mouse->click(header(1)), View::eMouseHandled);
        QCOMPARE(selected(), QStringLiteral("b()"));
        QCOMPARE(takeNotices(), std::pair(1, 0));
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("a"), QStringLiteral("[b]")}));
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("b")));
    }

    void the_name_of_a_header_selects_no_subnode()
    {
        MO_ElementModule& named = _stage->addElement(arm);
        QVERIFY(startWith({&named}));
        _mouse->click(header(0));
        QCOMPARE(selected(), QStringLiteral("arm()"));
        _mouse->click(header(0), Qt::ShiftModifier);
        _mouse->click(header(0), Qt::ShiftModifier);
        QCOMPARE(selected(), QStringLiteral("arm()"));
    }

    void an_extending_click_on_a_header_toggles_its_element()
    {
        QVERIFY(showRobots());
        QCOMPARE(_mouse->click(header(1), Qt::ShiftModifier), View::eMouseHandled);
        QCOMPARE(selected(), QStringLiteral("a(leg) b()"));
        QCOMPARE(takeNotices(), std::pair(1, 0));
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("[a]"), QStringLiteral("b")}));
        QCOMPARE(_mouse->click(header(0), Qt::ShiftModifier), View::eMouseHandled);
        QCOMPARE(selected(), QStringLiteral("b()"));
        QCOMPARE(takeNotices(), std::pair(1, 1));
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("a"), QStringLiteral("[b]")}));
        _mouse->click(header(1), Qt::ShiftModifier);
        QCOMPARE(selected(), QString());
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }

    void a_click_on_a_control_folds_and_unfolds_and_does_nothing_else()
    {
        QVERIFY(showRobots());
        const Qt::KeyboardModifiers held[] = {Qt::NoModifier, Qt::ShiftModifier};
        for (const Qt::KeyboardModifiers modifiers : held) {
            QCOMPARE(_mouse->click(control(arm), modifiers), View::eMouseHandled);
            QVERIFY(_stage->node(arm)->isCollapsed());
            QCOMPARE(_stage->node(hand)->column(), -1);
            QCOMPARE(_stage->node(leg)->row(), 3);
            QVERIFY(repaints([&] { _mouse->click(control(arm), modifiers); }) > 0);
            QVERIFY(!_stage->node(arm)->isCollapsed());
            QCOMPARE(_stage->node(leg)->row(), 4);
        }
        QCOMPARE(selected(), QStringLiteral("a(leg)"));
        QCOMPARE(takeNotices(), std::pair(0, 0));
        QVERIFY(!_stage->context().commandManager()->history()->canUndo());
    }

    void a_press_on_empty_space_leaves_nothing_selected_but_the_open_element()
    {
        QVERIFY(showRobots());
        _stage->select(
            {node(QStringLiteral("a")), node(QStringLiteral("peg")), node(QStringLiteral("b"))});
        _stage->subSelect(element(QStringLiteral("a")), {leg});
        takeNotices();
        QCOMPARE(_mouse->press(emptySpace), View::eMouseMarquee);
        QCOMPARE(selected(), QStringLiteral("a()"));
        QCOMPARE(takeNotices(), std::pair(1, 1));
        QCOMPARE(_stage->selectedNames(), QStringList(QStringLiteral("a")));
        QCOMPARE(_stage->headers(), QStringList({QStringLiteral("[a]"), QStringLiteral("b")}));
        _mouse->release(emptySpace);
        QCOMPARE(selected(), QStringLiteral("a()"));
        QCOMPARE(takeNotices(), std::pair(0, 0));
    }

    void an_extending_press_on_empty_space_changes_nothing()
    {
        QVERIFY(showRobots());
        for (const QPoint at : {emptySpace, box(arm) + QPoint(0, 16), QPoint(10, 145)}) {
            QCOMPARE(_mouse->press(at, Qt::ShiftModifier), View::eMouseMarquee);
            _mouse->release(at, Qt::ShiftModifier);
            QCOMPARE(selected(), QStringLiteral("a(leg)"));
        }
        QCOMPARE(takeNotices(), std::pair(0, 0));
    }

    void without_an_open_element_a_press_on_empty_space_deselects_everything()
    {
        QVERIFY(showRobots());
        _stage->select({node(QStringLiteral("peg"))});
        takeNotices();
        QCOMPARE(_mouse->click(emptySpace), View::eMouseMarquee);
        QCOMPARE(selected(), QString());
        QCOMPARE(takeNotices(), std::pair(1, 0));
        QCOMPARE(_mouse->click(emptySpace), View::eMouseMarquee);
        QCOMPARE(takeNotices(), std::pair(0, 0));
    }

    void a_plain_node_is_not_selected()
    {
        PR_Preference::instance()->setBoolValue(extendedKey(), true);
        MO_ElementModule& shown = _stage->addElement(
            QStringLiteral("a"), model(key("body", {group("plain", {shapedKey("leg")})})));
        QVERIFY(startWith({&shown}, {leg}));
        for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ShiftModifier})
            QCOMPARE(_mouse->click(box(QStringLiteral("plain")), held), View::eMouseMarquee);
        QCOMPARE(selected(), QStringLiteral("a(leg)"));
        QCOMPARE(takeNotices(), std::pair(0, 0));
    }

    void a_locked_element_is_not_selected_by_its_header_but_its_subnodes_are()
    {
        QVERIFY(showRobots());
        element(QStringLiteral("a")).setEditable(false);
        element(QStringLiteral("b")).setEditable(false);
        _stage->notify();
        for (const int ix : {0, 1}) {
            for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ShiftModifier})
                QCOMPARE(_mouse->click(header(ix), held), View::eMouseMarquee);
        }
        QCOMPARE(selected(), QStringLiteral("a(leg)"));
        QCOMPARE(_mouse->click(box(hand)), View::eMouseHandled);
        QCOMPARE(selected(), QStringLiteral("a(hand)"));
    }

    void nothing_is_selected_of_an_element_that_is_gone()
    {
        QVERIFY(showRobots());
        _stage->select({node(QStringLiteral("a")), node(QStringLiteral("peg"))});
        takeNotices();
        // Nobody is told of it yet.
        for (const QString& name : {QStringLiteral("a"), QStringLiteral("b")}) {
            MO_Node* doomed = node(name);
            doomed->parentGroup()->takeNode(doomed).reset();
        }
        for (const QPoint at : {header(0), header(1), box(hand)}) {
            for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ShiftModifier}) {
                QCOMPARE(_mouse->press(at, held), View::eMouseMarquee);
                QCOMPARE(selected(), QStringLiteral("peg()"));
                QCOMPARE(takeNotices(), std::pair(0, 0));
                _mouse->release(emptySpace, Qt::ShiftModifier);
            }
        }
        QCOMPARE(_mouse->press(emptySpace), View::eMouseMarquee);
        QCOMPARE(selected(), QString());
    }

    void nothing_is_selected_where_nothing_is_shown()
    {
        QVERIFY(startWith({&_stage->addPeg(QStringLiteral("peg"))}));
        for (const QPoint at : {header(0), emptySpace}) {
            QCOMPARE(_mouse->click(at, Qt::ShiftModifier), View::eMouseMarquee);
            QCOMPARE(selected(), QStringLiteral("peg()"));
        }
        QCOMPARE(_mouse->click(header(0)), View::eMouseMarquee);
        QCOMPARE(selected(), QString());
        QVERIFY(controller()->onSelectAll());
        QCOMPARE(selected(), QString());
        QCOMPARE(takeNotices(), std::pair(1, 1));
    }

    void a_nameless_subnode_selects_its_element_alone()
    {
        MO_ElementModule& shown =
            _stage->addElement(QStringLiteral("a"), model(key(noName, {shapedKey("leg")})));
        QVERIFY(startWith({&shown}, {leg}));
        QCOMPARE(_mouse->click(box(QString()), Qt::ShiftModifier), View::eMouseHandled);
        QCOMPARE(selected(), QStringLiteral("a(leg)"));
        QCOMPARE(_mouse->click(box(QString())), View::eMouseHandled);
        QCOMPARE(selected(), QStringLiteral("a()"));
        QVERIFY(controller()->onSelectAll());
        QCOMPARE(selected(), QStringLiteral("a(leg)"));
    }

    void of_subnodes_with_one_name_the_first_is_marked()
    {
        MO_ElementModule& shown = _stage->addElement(
            QStringLiteral("a"),
            model(key("body", {key("arm", {shapedKey("hand")}), key("leg", {shapedKey("hand")})})));
        QVERIFY(startWith({&shown}));
        const GV_UiNode* first = *_stage->node(arm)->childrenBegin();
        const GV_UiNode* second = *_stage->node(leg)->childrenBegin();
        _mouse->click(corner(second) + QPoint(5, 5));
        QCOMPARE(selected(), QStringLiteral("a(hand)"));
        QVERIFY(_stage->graph().isSubNodeSelected(first));
        QVERIFY(!_stage->graph().isSubNodeSelected(second));
    }

    void subclasses_hear_of_the_end_of_each_selecting_gesture_before_listeners_do()
    {
        QVERIFY(showRobots());
        View panel(_stage->context().actionManager(), nullptr, &_stage->context());
        auto* ctrl = new NotingCtrl(&panel, &_stage->context());
        panel.init(ctrl);
        PanelMouse mouse(panel);
        QVERIFY(mouse.show());
        mouse.click(box(hand));
        mouse.click(header(1), Qt::ShiftModifier);
        mouse.click(control(arm));
        mouse.drag(emptySpace, header(0), Qt::ShiftModifier);
        mouse.click(emptySpace);
        QCOMPARE(ctrl->updates, QStringList({QStringLiteral("1 selected, 0 told"),
                                             QStringLiteral("2 selected, 1 told"),
                                             QStringLiteral("2 selected, 2 told")}));
    }

    void the_tool_tip_tells_names_that_labels_may_not()
    {
        const QString longName = QStringLiteral("a_name_that_is_much_too_long_for_its_box");
        PR_Preference::instance()->setBoolValue(extendedKey(), true);
        QCOMPARE(toolTip(header(0)), QString());
        MO_ElementModule& shown = _stage->addElement(
            QStringLiteral("a"), model(key("body", {group(longName.toStdString(), {key("leg")})})));
        _stage->addElement(longName).setEditable(false);
        QVERIFY(startWith({&shown}));
        QVERIFY(!_stage->node(longName)->displayName().isEmpty());
        QCOMPARE(toolTip(header(0)), QStringLiteral("Layer a"));
        QCOMPARE(toolTip(header(1)), QStringLiteral("Layer ") + longName);
        QCOMPARE(toolTip(box(longName)), longName);
        for (const QPoint at : {box(leg), control(longName), box(longName) + QPoint(0, 16),
                                header(0) + QPoint(80, 0), header(2), emptySpace, QPoint(-5, -5)})
            QCOMPARE(toolTip(at), QString());
    }
};

QTEST_MAIN(tst_GV_GraphXViewCtrlPointer)
#include "tst_GV_GraphXViewCtrlPointer.moc"
