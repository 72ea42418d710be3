// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "SampleModel.h"
#include "host/commands/CO_CommandAccumScope.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "host/selection/SL_SelectionCommands.h"
#include "referencehost/commands/DeleteNodes.h"
#include "referencehost/commands/RenameNode.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

/// Two elements, e and f, with four subnodes each, and two pegs, p and q.
class tst_SL_SelectionCommands : public QObject
{
    Q_OBJECT

private:
    struct Setting
    {
        TUSceneChangeManager changes;
        SL_Selection selection{&changes};
        TUScene scene{QStringLiteral("Scene"), &changes};
        CO_CommandManager commands{&changes};
    };
    std::unique_ptr<Setting> _setting;
    MO_Node *_e = nullptr, *_f = nullptr, *_p = nullptr, *_q = nullptr;

    SL_Selection& selection() { return _setting->selection; }
    QUndoStack& history() { return *_setting->commands.history(); }
    MO_GroupModule& root() { return *_setting->scene.rootGroup(); }
    MO_Node* addElement(const QString& name)
    {
        auto element = std::make_unique<MO_ElementModule>(name);
        element->exposeModel(1, 1, modelOfSize(4));
        return root().insertNode(std::move(element));
    }
    /// The selection in order, each node with its sub-selection in order.
    QString selected()
    {
        QStringList members;
        for (const MO_Node* node : selection().nodes()) {
            QString text = node->instanceName();
            for (const int id : node->selInterface()->subSelectedIds())
                text += QString::number(id);
            members << text;
        }
        return members.join(u' ');
    }
    void select(const std::vector<MO_Node*>& nodes)
    {
        const SL_SelectionCommands::Scope scope(&_setting->commands, &selection());
        selection().clear();
        for (MO_Node* node : nodes)
            selection().add(node);
    }
    void subSelect(MO_Node* node, const std::vector<int>& ids)
    {
        const SL_SelectionCommands::Scope scope(&_setting->commands, &selection());
        node->selInterface()->clearSubSelection();
        for (const int id : ids)
            node->selInterface()->subSelect(id, true);
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        _setting = std::make_unique<Setting>();
        _e = addElement(QStringLiteral("e"));
        _f = addElement(QStringLiteral("f"));
        _p = root().insertNode(std::make_unique<MO_PegModule>("p"));
        _q = root().insertNode(std::make_unique<MO_PegModule>("q"));
        _setting->changes.notify();
    }
    void cleanup()
    {
        history().clear();
        _setting.reset();
    }

    void makes_one_step_of_what_happens_while_it_is_open()
    {
        {
            const SL_SelectionCommands::Scope scope(&_setting->commands, &selection());
            selection().add(_q);
            selection().add(_e);
            _e->selInterface()->subSelect(3, true);
            _e->selInterface()->subSelect(1, true);
            QCOMPARE(history().count(), 0);
        }
        QCOMPARE(history().count(), 1);
        QVERIFY(!history().undoText().isEmpty());
        QCOMPARE(selected(), QStringLiteral("q e31"));
        history().undo();
        QVERIFY(selection().empty());
        history().redo();
        QCOMPARE(selected(), QStringLiteral("q e31"));
    }

    void brings_back_order_and_sub_selections_exactly()
    {
        select({_q, _f, _e});
        subSelect(_f, {4, 2, 3});
        subSelect(_e, {2, 1});
        select({_e, _p});
        QCOMPARE(selected(), QStringLiteral("e p"));
        history().undo();
        QCOMPARE(selected(), QStringLiteral("q f423 e21"));
        history().undo();
        QCOMPARE(selected(), QStringLiteral("q f423 e"));
        history().undo();
        QCOMPARE(selected(), QStringLiteral("q f e"));
        history().redo();
        history().redo();
        QCOMPARE(selected(), QStringLiteral("q f423 e21"));
        history().redo();
        QCOMPARE(selected(), QStringLiteral("e p"));
    }

    void another_order_is_another_selection()
    {
        select({_p, _q});
        select({_q, _p});
        QCOMPARE(history().count(), 2);
        history().undo();
        QCOMPARE(selected(), QStringLiteral("p q"));
        select({_e});
        subSelect(_e, {1, 2});
        const int steps = history().count();
        subSelect(_e, {2, 1});
        QCOMPARE(history().count(), steps + 1);
        history().undo();
        QCOMPARE(selected(), QStringLiteral("e12"));
    }

    void makes_no_step_when_it_ends_up_the_same()
    {
        select({_p, _e});
        subSelect(_e, {2, 3});
        history().undo();
        history().redo();
        const int steps = history().count();
        {
            const SL_SelectionCommands::Scope scope(&_setting->commands, &selection());
        }
        select({_p, _e});
        QCOMPARE(selected(), QStringLiteral("p e"));
        history().undo();
        QCOMPARE(selected(), QStringLiteral("p e23"));
        subSelect(_e, {2, 3});
        QCOMPARE(history().count(), steps + 1);
        QVERIFY(history().canRedo());
    }

    void changes_are_told_once_when_it_ends()
    {
        ChangeLog log(_setting->changes);
        {
            const SL_SelectionCommands::Scope scope(&_setting->commands, &selection());
            selection().add(_e);
            selection().add(_p);
            _e->selInterface()->subSelect(1, true);
            _setting->changes.notify();
            QVERIFY(log.told().isEmpty());
        }
        const QStringList both{"selection", "sub-selection"};
        QCOMPARE(log.take(), both);
        history().undo();
        QCOMPARE(log.take(), both);
        history().redo();
        QCOMPARE(log.take(), both);
        subSelect(_e, {2});
        QCOMPARE(log.take(), QStringList{"sub-selection"});
        history().undo();
        QCOMPARE(log.take(), QStringList{"sub-selection"});
    }

    void joins_an_accumulated_step()
    {
        {
            const CO_CommandAccumScope scope(&_setting->commands, QStringLiteral("Both"));
            select({_p});
            _setting->commands.execute(new RenameNode(_p, QStringLiteral("new")), QString());
            select({_p, _q});
        }
        QCOMPARE(history().count(), 1);
        QCOMPARE(history().undoText(), QStringLiteral("Both"));
        QCOMPARE(selected(), QStringLiteral("new q"));
        history().undo();
        QVERIFY(selection().empty());
        QCOMPARE(_p->instanceName(), QStringLiteral("p"));
        history().redo();
        QCOMPARE(selected(), QStringLiteral("new q"));
    }

    void goes_back_over_the_deletion_of_selected_nodes()
    {
        select({_p, _e, _q});
        subSelect(_e, {4, 1});
        QVERIFY(_setting->commands.execute(new DeleteNodes({_e}, &selection()), QString()));
        QCOMPARE(selected(), QStringLiteral("p q"));
        select({_q});
        history().undo();
        QCOMPARE(selected(), QStringLiteral("p q"));
        history().undo();
        QVERIFY(_e->selected());
        history().undo();
        QCOMPARE(selected(), QStringLiteral("p e q"));
        history().redo();
        QCOMPARE(selected(), QStringLiteral("p e41 q"));
        history().redo();
        history().redo();
        QCOMPARE(selected(), QStringLiteral("q"));
    }

    void leaves_out_nodes_that_are_gone_or_out_of_the_scene()
    {
        select({_e, _p, _q});
        subSelect(_e, {1});
        select({_q});
        root().takeNode(_p).reset();
        const std::unique_ptr<MO_Node> out = root().takeNode(_e);
        history().undo();
        QCOMPARE(selected(), QStringLiteral("q"));
        QVERIFY(!out->selected());
        history().undo();
        history().undo();
        QVERIFY(selection().empty());
        history().redo();
        QCOMPARE(selected(), QStringLiteral("q"));
        QCOMPARE(history().count(), 3);
    }

    void a_node_that_dies_while_it_is_open_is_harmless()
    {
        select({_p, _q});
        {
            const SL_SelectionCommands::Scope scope(&_setting->commands, &selection());
            root().takeNode(_p).reset();
        }
        QCOMPARE(selected(), QStringLiteral("q"));
        history().undo();
        QCOMPARE(selected(), QStringLiteral("q"));
    }

    void any_row_of_selections_is_undone_and_redone_step_by_step()
    {
        QRandomGenerator random(23);
        const std::vector<MO_Node*> nodes{_e, _f, _p, _q};
        QStringList states{QString()};
        for (int i = 0; i < 200; ++i) {
            {
                const SL_SelectionCommands::Scope scope(&_setting->commands, &selection());
                for (int edits = random.bounded(1, 5); edits > 0; --edits) {
                    MO_Node* node = nodes[random.bounded(4U)];
                    const int id = random.bounded(1, 5);
                    if (SLB_NodeInterface* selected = node->selInterface(); !selected)
                        selection().add(node);
                    else if (random.bounded(5) == 0)
                        selection().remove(node);
                    else if (selected->isSubSelected(id))
                        selected->subDeselect(id);
                    else
                        selected->subSelect(id, random.bounded(3) > 0);
                }
            }
            if (selected() != states.last())
                states << selected();
            QCOMPARE(history().count(), states.size() - 1);
        }
        QVERIFY(states.size() > 50);
        for (auto state = states.rbegin(); state != states.rend(); ++state) {
            QCOMPARE(selected(), *state);
            history().undo();
        }
        for (const QString& state : states) {
            QCOMPARE(selected(), state);
            history().redo();
        }
    }
};

QTEST_GUILESS_MAIN(tst_SL_SelectionCommands)
#include "tst_SL_SelectionCommands.moc"
