// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "SampleModel.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/commands/DeleteNodes.h"
#include "referencehost/commands/MoveNode.h"
#include "referencehost/commands/RenameNode.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>
#include <array>

using Nodes = std::vector<MO_Node*>;

namespace {

/// A group and what it holds in one line: a(b c).
QString outline(const MO_GroupModule& group)
{
    QStringList parts;
    for (const MO_Node* node : group.nodes()) {
        const auto* inner = dynamic_cast<const MO_GroupModule*>(node);
        parts << node->instanceName() +
                     (inner ? QStringLiteral("(%1)").arg(outline(*inner)) : QString());
    }
    return parts.join(u' ');
}

} // namespace

/// The commands that edit the nodes of a scene.
class tst_SceneCommands : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TUSceneChangeManager> _changes;
    std::unique_ptr<SL_Selection> _selection;
    std::unique_ptr<TUScene> _scene;
    std::unique_ptr<CO_CommandManager> _commands;
    MO_ElementModule* _robot = nullptr;
    MO_GroupModule* _outer = nullptr;
    MO_GroupModule* _inner = nullptr;
    MO_Node* _peg = nullptr;
    MO_Node* _deepPeg = nullptr;

    template <class Node>
    static Node* add(MO_GroupModule& group, const QString& name)
    {
        return static_cast<Node*>(group.insertNode(std::make_unique<Node>(name)));
    }
    QString scene() const { return outline(*_scene->rootGroup()); }
    bool rename(MO_Node* node, const char* name)
    {
        return _commands->execute(new RenameNode(node, QString::fromLatin1(name)),
                                  QStringLiteral("Rename"));
    }
    bool move(MO_Node* node, int position)
    {
        return _commands->execute(new MoveNode(node, position), QStringLiteral("Move"));
    }
    bool remove(const Nodes& nodes)
    {
        return _commands->execute(new DeleteNodes(nodes, _selection.get()),
                                  QStringLiteral("Delete"));
    }
    void undo() { _commands->history()->undo(); }
    void redo() { _commands->history()->redo(); }
    int steps() const { return _commands->history()->count(); }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    /// robot outer(inner(deep) shallow) peg
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _changes = std::make_unique<TUSceneChangeManager>();
        _selection = std::make_unique<SL_Selection>(_changes.get());
        _scene = std::make_unique<TUScene>(QStringLiteral("scene"), _changes.get());
        _commands = std::make_unique<CO_CommandManager>(_changes.get());
        MO_GroupModule& root = *_scene->rootGroup();
        _robot = add<MO_ElementModule>(root, "robot");
        _robot->exposeModel(1, 100, modelOf({"body", "arm", "leg"}));
        _outer = add<MO_GroupModule>(root, "outer");
        _peg = add<MO_PegModule>(root, "peg");
        _inner = add<MO_GroupModule>(*_outer, "inner");
        add<MO_PegModule>(*_outer, "shallow");
        _deepPeg = add<MO_PegModule>(*_inner, "deep");
        _changes->notify();
    }
    void cleanup()
    {
        _commands.reset();
        _scene.reset();
        _selection.reset();
        _changes.reset();
    }

    void a_rename_is_undone_and_redone()
    {
        ChangeLog log(*_changes);
        QVERIFY(rename(_deepPeg, "new"));
        QCOMPARE(_deepPeg->instanceName(), QStringLiteral("new"));
        QCOMPARE(log.take(), QStringList{"names new"});
        undo();
        QCOMPARE(_deepPeg->instanceName(), QStringLiteral("deep"));
        QCOMPARE(log.take(), QStringList{"names deep"});
        redo();
        QCOMPARE(_deepPeg->instanceName(), QStringLiteral("new"));
        QVERIFY(rename(_deepPeg, "newer"));
        undo();
        undo();
        QCOMPARE(_deepPeg->instanceName(), QStringLiteral("deep"));
    }

    void a_rename_to_the_same_name_or_of_nothing_is_no_step()
    {
        QVERIFY(!rename(_peg, "peg"));
        QVERIFY(!rename(nullptr, "new"));
        QCOMPARE(steps(), 0);
        QVERIFY(RenameNode(nullptr, QStringLiteral("new")).empty());
        QVERIFY(!RenameNode(nullptr, QStringLiteral("new")).execute());
        QVERIFY(!RenameNode(_peg, QStringLiteral("new")).empty());
    }

    void a_rename_outlives_its_node()
    {
        QVERIFY(rename(_peg, "new"));
        _peg->parentGroup()->takeNode(_peg).reset();
        undo();
        QCOMPARE(steps(), 0);
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow)"));
    }

    void a_move_is_undone_and_redone()
    {
        ChangeLog log(*_changes);
        QVERIFY(move(_peg, 0));
        QCOMPARE(scene(), QStringLiteral("peg robot outer(inner(deep) shallow)"));
        QCOMPARE(log.take().size(), 1);
        undo();
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow) peg"));
        redo();
        QCOMPARE(scene(), QStringLiteral("peg robot outer(inner(deep) shallow)"));
        undo();
        QVERIFY(move(_inner, 1));
        QCOMPARE(scene(), QStringLiteral("robot outer(shallow inner(deep)) peg"));
        undo();
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow) peg"));
    }

    void moves_that_lead_nowhere_are_no_steps()
    {
        MO_PegModule detached{QStringLiteral("detached")};
        QVERIFY(!move(_peg, 2));
        QVERIFY(!move(_peg, 3));
        QVERIFY(!move(_peg, -1));
        QVERIFY(!move(_deepPeg, 1));
        QVERIFY(!move(nullptr, 0));
        QVERIFY(!move(&detached, 0));
        QVERIFY(!move(_scene->rootGroup(), 0));
        QCOMPARE(steps(), 0);
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow) peg"));
    }

    void a_move_keeps_the_selection()
    {
        _selection->add(_robot);
        _robot->selInterface()->subSelect(2, true);
        QVERIFY(move(_robot, 2));
        undo();
        QCOMPARE(_selection->nodes(), Nodes{_robot});
        QCOMPARE(_robot->selInterface()->subSelectedIds(), std::vector<int>{2});
    }

    void deleted_nodes_come_back_as_themselves_where_they_were()
    {
        QVERIFY(remove({_peg, _robot}));
        QCOMPARE(scene(), QStringLiteral("outer(inner(deep) shallow)"));
        QVERIFY(!_peg->scene());
        undo();
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow) peg"));
        QCOMPARE(_scene->rootGroup()->nodes(), (Nodes{_robot, _outer, _peg}));
        QVERIFY(_robot->modelAt(50));
        QCOMPARE(_robot->scene(), _scene.get());
        redo();
        QCOMPARE(scene(), QStringLiteral("outer(inner(deep) shallow)"));
        undo();
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow) peg"));
    }

    void a_group_takes_what_it_holds_along()
    {
        // Those further in go with their group, wherever they stand in the list.
        for (const Nodes& nodes :
             {Nodes{_outer}, Nodes{_deepPeg, _outer, _inner}, Nodes{_inner, _deepPeg, _outer}}) {
            QVERIFY(remove(nodes));
            QCOMPARE(scene(), QStringLiteral("robot peg"));
            QCOMPARE(outline(*_outer), QStringLiteral("inner(deep) shallow"));
            undo();
            QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow) peg"));
            QCOMPARE(_deepPeg->scene(), _scene.get());
        }
    }

    void nodes_of_different_groups_come_back_each_to_its_own()
    {
        QVERIFY(remove({_deepPeg, _peg, _outer->nodes().back()}));
        QCOMPARE(scene(), QStringLiteral("robot outer(inner())"));
        undo();
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow) peg"));
    }

    void deleting_nothing_is_no_step()
    {
        MO_PegModule detached{QStringLiteral("detached")};
        QVERIFY(!remove({}));
        QVERIFY(!remove({nullptr}));
        QVERIFY(!remove({&detached, nullptr}));
        QVERIFY(!remove({_scene->rootGroup()}));
        QCOMPARE(steps(), 0);
        QVERIFY(remove({nullptr, &detached, _peg}));
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow)"));
    }

    void a_node_named_twice_is_deleted_once()
    {
        const QString before = scene();
        QVERIFY(remove({_peg, _peg}));
        undo();
        QCOMPARE(scene(), before);
    }

    void what_others_took_out_meanwhile_is_left_alone()
    {
        QVERIFY(remove({_robot, _peg}));
        undo();
        const std::unique_ptr<MO_Node> taken = _scene->rootGroup()->takeNode(_peg);
        redo();
        QVERIFY(!_peg->scene());
        undo();
        QVERIFY(_robot->scene());
        QVERIFY(!_peg->scene());
    }

    void selection_and_sub_selection_come_back()
    {
        for (MO_Node* node : Nodes{_peg, _robot, _deepPeg})
            _selection->add(node);
        for (const int id : {3, 1})
            _robot->selInterface()->subSelect(id, true);
        _changes->notify();
        QVERIFY(remove({_robot, _outer}));
        QCOMPARE(_selection->nodes(), Nodes{_peg});
        QVERIFY(!_deepPeg->selected());
        for (int round = 0; round < 2; ++round) {
            undo();
            QCOMPARE(_selection->nodes(), (Nodes{_peg, _robot, _deepPeg}));
            QCOMPARE(_robot->selInterface()->subSelectedIds(), (std::vector<int>{3, 1}));
            QVERIFY(!_outer->selected());
            redo();
            QCOMPARE(_selection->nodes(), Nodes{_peg});
        }
    }

    void what_is_selected_when_it_is_done_again_is_what_comes_back()
    {
        QVERIFY(remove({_robot}));
        undo();
        QVERIFY(_selection->empty());
        _selection->add(_robot);
        _robot->selInterface()->subSelect(2, true);
        redo();
        undo();
        QCOMPARE(_selection->nodes(), Nodes{_robot});
        QCOMPARE(_robot->selInterface()->subSelectedIds(), std::vector<int>{2});
    }

    void listeners_hear_of_the_network_and_the_selection_once_each()
    {
        _selection->add(_robot);
        _robot->selInterface()->subSelect(1, true);
        _changes->notify();
        ChangeLog log(*_changes);
        QVERIFY(remove({_robot, _peg}));
        const QStringList removed = log.take();
        QCOMPARE(removed.filter(QStringLiteral("network")).size(), 1);
        QCOMPARE(removed.count(QStringLiteral("selection")), 1);
        undo();
        const QStringList returned = log.take();
        QCOMPARE(returned.filter(QStringLiteral("network")).size(), 1);
        QCOMPARE(returned.count(QStringLiteral("selection")), 1);
        QCOMPARE(returned.count(QStringLiteral("sub-selection")), 1);
        QVERIFY(returned.contains(QStringLiteral("nodes peg robot")));
    }

    void dropped_steps_destroy_what_they_hold()
    {
        const UT_SharedWeakPtr<MO_Node> robot(_robot);
        QVERIFY(remove({_robot}));
        QVERIFY(robot.get());
        _commands->history()->clear();
        QVERIFY(!robot.get());
    }

    void any_row_of_edits_is_undone_and_redone_step_by_step()
    {
        QRandomGenerator random(11);
        const std::array<MO_Node*, 6> nodes{_robot, _outer,   _inner,
                                            _peg,   _deepPeg, _outer->nodes().back()};
        QStringList states{scene()};
        for (int i = 0; i < 300; ++i) {
            // Nodes that are deleted at the moment stay alive in the history.
            const auto which = random.bounded(quint32(nodes.size()));
            MO_Node* node = nodes[which];
            switch (random.bounded(8)) {
            case 0:
            case 1:
            case 5:
            case 6:
                rename(node, qPrintable(QString::number(random.bounded(50))));
                break;
            case 2:
            case 3:
                move(node, random.bounded(-1, 4));
                break;
            case 4:
                remove({node, nodes[(which + random.bounded(1U, 6U)) % nodes.size()]});
                break;
            default:
                for (int back = random.bounded(3); back > 0 && states.size() > 1; --back) {
                    undo();
                    states.removeLast();
                    QCOMPARE(scene(), states.last());
                }
                continue;
            }
            // A step that follows after an undo takes the place of those undone.
            if (_commands->history()->index() == states.size())
                states << scene();
            QCOMPARE(scene(), states.last());
        }
        const QStringList all = states;
        QVERIFY(all.size() > 10);
        while (_commands->history()->canUndo()) {
            undo();
            states.removeLast();
            QCOMPARE(scene(), states.last());
        }
        QCOMPARE(scene(), QStringLiteral("robot outer(inner(deep) shallow) peg"));
        for (int i = 1; i < all.size(); ++i) {
            redo();
            QCOMPARE(scene(), all[i]);
        }
    }
};

QTEST_GUILESS_MAIN(tst_SceneCommands)
#include "tst_SceneCommands.moc"
