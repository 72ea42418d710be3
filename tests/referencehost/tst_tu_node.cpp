// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/commands/CO_CommandManager.h"
#include "host/commands/CO_MacroCommand.h"
#include "host/commands/tu_node.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

using tu_node::AddSubNodeCmd;
using tu_node::LinkCmd;
using Nodes = std::vector<MO_Node*>;
using Ports = std::vector<MO_Port*>;

class tst_tu_node : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    std::unique_ptr<TUScene> _scene;
    MO_GroupModule* _root = nullptr;
    MO_Node* _first = nullptr;

    static MO_Node* peg(const char* name) { return new MO_PegModule(QString::fromLatin1(name)); }
    MO_Node* add(const char* name)
    {
        return _root->insertNode(std::unique_ptr<MO_Node>(peg(name)));
    }
    static MO_Port* in(const MO_Node* node, int index = 0) { return node->inPort(index); }
    static MO_Port* out(const MO_Node* node, int index = 0) { return node->outPort(index); }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _scene = std::make_unique<TUScene>(QStringLiteral("Scene"), &_changes);
        _root = _scene->rootGroup();
        _first = add("first");
        _changes.notify();
    }
    void cleanup()
    {
        _scene.reset();
        _changes.notify();
    }

    void adds_a_node_as_the_last_one_and_takes_it_out_again()
    {
        MO_Node* node = peg("new");
        AddSubNodeCmd command(_root, node);
        QVERIFY(!command.empty());
        QCOMPARE(_root->nodes(), Nodes{_first});
        QVERIFY(command.execute());
        for (int round = 0; round < 3; ++round) {
            QCOMPARE(_root->nodes(), (Nodes{_first, node}));
            QCOMPARE(node->scene(), _scene.get());
            QVERIFY(command.undo());
            QCOMPARE(_root->nodes(), Nodes{_first});
            QVERIFY(!node->scene() && !node->parentGroup());
            QVERIFY(command.redo());
        }
    }

    void adds_and_takes_out_once_only()
    {
        AddSubNodeCmd command(_root, peg("new"));
        QVERIFY(!command.undo());
        QVERIFY(command.execute());
        QVERIFY(!command.execute());
        QCOMPARE(_root->nodes().size(), 2u);
        QVERIFY(command.undo());
        QVERIFY(!command.undo());
        QCOMPARE(_root->nodes().size(), 1u);
    }

    void adding_is_told()
    {
        ChangeLog log(_changes);
        AddSubNodeCmd command(_root, peg("new"));
        _changes.notify();
        QVERIFY(log.told().isEmpty());
        command.execute();
        _changes.notify();
        const QStringList added = log.take();
        QVERIFY(added.contains(QStringLiteral("network new")));
        QVERIFY(added.contains(QStringLiteral("nodes new")));
        command.undo();
        _changes.notify();
        QVERIFY(log.told().contains(QStringLiteral("network new")));
    }

    void a_node_that_is_never_added_dies_with_its_command()
    {
        const UT_SharedWeakPtr<MO_Node> never(peg("a")), groupless(peg("b")), undone(peg("c")),
            added(peg("d"));
        {
            const AddSubNodeCmd neverExecuted(_root, never.get());
            AddSubNodeCmd withoutGroup(nullptr, groupless.get());
            QVERIFY(!withoutGroup.execute());
            AddSubNodeCmd undoneAgain(_root, undone.get()), executed(_root, added.get());
            QVERIFY(undoneAgain.execute());
            QVERIFY(undoneAgain.undo());
            QVERIFY(executed.execute());
            QVERIFY(never && groupless && undone);
        }
        QVERIFY(!never && !groupless && !undone);
        QVERIFY(added);
        QCOMPARE(_root->nodes(), (Nodes{_first, added.get()}));
    }

    void adding_needs_a_group_and_a_node()
    {
        AddSubNodeCmd noGroup(nullptr, peg("a")), noNode(_root, nullptr), nothing(nullptr, nullptr);
        for (AddSubNodeCmd* command : {&noGroup, &noNode, &nothing}) {
            QVERIFY(command->empty());
            QVERIFY(!command->execute());
            QVERIFY(!command->undo());
        }
        QCOMPARE(_root->nodes(), Nodes{_first});
    }

    void adding_fails_once_the_group_is_gone()
    {
        auto group = std::make_unique<MO_GroupModule>(QStringLiteral("group"));
        AddSubNodeCmd late(group.get(), peg("late")), early(group.get(), peg("early"));
        QVERIFY(early.execute());
        group.reset();
        QVERIFY(late.empty());
        QVERIFY(!late.execute());
        QVERIFY(!early.undo());
        QVERIFY(!early.redo());
    }

    void links_and_unlinks()
    {
        MO_Node* receiver = add("receiver");
        LinkCmd command(receiver, 0, _first, 0);
        QVERIFY(!in(receiver)->srcPort());
        QVERIFY(command.execute());
        for (int round = 0; round < 3; ++round) {
            QCOMPARE(in(receiver)->srcPort(), out(_first));
            QCOMPARE(out(_first)->dstPorts(), Ports{in(receiver)});
            QVERIFY(command.undo());
            QVERIFY(!in(receiver)->srcPort());
            QVERIFY(out(_first)->dstPorts().empty());
            QVERIFY(command.redo());
        }
    }

    void links_the_ports_of_the_indices()
    {
        MO_Node* receiver = add("receiver");
        receiver->addPort(MO_Port::eInput);
        _first->addPort(MO_Port::eOutput);
        LinkCmd command(receiver, 1, _first, 1);
        QVERIFY(command.execute());
        QCOMPARE(in(receiver, 1)->srcPort(), out(_first, 1));
        QVERIFY(!in(receiver, 0)->srcPort());
        QVERIFY(out(_first, 0)->dstPorts().empty());
    }

    void undoing_a_link_restores_what_fed_the_input_before()
    {
        MO_Node *second = add("second"), *receiver = add("receiver");
        _first->addPort(MO_Port::eOutput);
        MO_Port::link(out(_first, 1), in(receiver));
        LinkCmd command(receiver, 0, second, 0);
        QVERIFY(command.execute());
        for (int round = 0; round < 3; ++round) {
            QCOMPARE(in(receiver)->srcPort(), out(second));
            QVERIFY(out(_first, 1)->dstPorts().empty());
            QVERIFY(command.undo());
            QCOMPARE(in(receiver)->srcPort(), out(_first, 1));
            QVERIFY(out(second)->dstPorts().empty());
            QVERIFY(command.redo());
        }
    }

    void undoing_a_link_only_unlinks_when_what_was_before_is_gone()
    {
        MO_Node *second = add("second"), *receiver = add("receiver");
        MO_Port::link(out(_first), in(receiver));
        LinkCmd command(receiver, 0, second, 0);
        QVERIFY(command.execute());
        _root->takeNode(_first).reset();
        QVERIFY(command.undo());
        QVERIFY(!in(receiver)->srcPort());
        QVERIFY(command.redo());
        QCOMPARE(in(receiver)->srcPort(), out(second));
    }

    void refuses_a_link_that_cannot_be()
    {
        MO_Node *receiver = add("receiver"), *dead = add("dead");
        MO_Port::link(out(_first), in(receiver));
        LinkCmd fromDead(receiver, 0, dead, 0), toDead(dead, 0, _first, 0);
        _root->takeNode(dead).reset();
        LinkCmd fromNull(receiver, 0, nullptr, 0), toNull(nullptr, 0, _first, 0),
            noInput(receiver, 1, _first, 0), noOutput(receiver, 0, _first, 1),
            below(receiver, -1, _first, 0), linkedAlready(receiver, 0, _first, 0);
        _changes.notify();
        const ChangeLog log(_changes);
        for (LinkCmd* command : {&fromDead, &toDead, &fromNull, &toNull, &noInput, &noOutput,
                                 &below, &linkedAlready}) {
            QVERIFY(!command->execute());
            QCOMPARE(in(receiver)->srcPort(), out(_first));
            QCOMPARE(out(_first)->dstPorts(), Ports{in(receiver)});
        }
        _changes.notify();
        QVERIFY(log.told().isEmpty());
    }

    void adding_and_linking_go_together()
    {
        CO_CommandManager manager(&_changes);
        MO_Node* node = peg("new");
        auto* both = new CO_AndCommand;
        both->append(new AddSubNodeCmd(_root, node));
        both->append(new LinkCmd(node, 0, _first, 0));
        QVERIFY(manager.execute(both, QStringLiteral("Add")));
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(_root->nodes(), (Nodes{_first, node}));
            QCOMPARE(in(node)->srcPort(), out(_first));
            manager.history()->undo();
            QCOMPARE(_root->nodes(), Nodes{_first});
            QVERIFY(out(_first)->dstPorts().empty());
            manager.history()->redo();
        }
    }

    void a_node_whose_link_fails_is_taken_out_again()
    {
        CO_CommandManager manager(&_changes);
        const UT_SharedWeakPtr<MO_Node> node(peg("new"));
        auto* both = new CO_AndCommand;
        both->append(new AddSubNodeCmd(_root, node.get()));
        both->append(new LinkCmd(node.get(), 0, _first, 5));
        QVERIFY(!manager.execute(both, QStringLiteral("Add")));
        QCOMPARE(_root->nodes(), Nodes{_first});
        QVERIFY(out(_first)->dstPorts().empty());
        QCOMPARE(manager.history()->count(), 0);
        QVERIFY(!node);
    }
};

QTEST_GUILESS_MAIN(tst_tu_node)
#include "tst_tu_node.moc"
