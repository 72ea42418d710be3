// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_Selection.h"

#include <QRegularExpression>
#include <QTest>

using Nodes = std::vector<MO_Node*>;

class tst_SL_Selection : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    MO_PegModule _nodeA{QStringLiteral("a")}, _nodeB{QStringLiteral("b")},
        _nodeC{QStringLiteral("c")};

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }
    void cleanup() { _changes.notify(); }

    void starts_empty()
    {
        const SL_Selection selection(&_changes);
        QVERIFY(selection.empty());
        QVERIFY(selection.nodes().empty());
        QVERIFY(!selection.firstNode());
    }

    void keeps_nodes_in_the_order_of_selecting()
    {
        SL_Selection selection(&_changes);
        for (MO_Node* node : Nodes{&_nodeB, &_nodeA, &_nodeC, &_nodeA})
            selection.add(node);
        QCOMPARE(selection.nodes(), (Nodes{&_nodeB, &_nodeA, &_nodeC}));
        selection.remove(&_nodeB);
        selection.add(&_nodeB);
        QCOMPARE(selection.nodes(), (Nodes{&_nodeA, &_nodeC, &_nodeB}));
        QCOMPARE(selection.firstNode(), &_nodeA);
    }

    void counts_order_ids_up_from_one_and_never_reuses_them()
    {
        SL_Selection selection(&_changes);
        selection.add(&_nodeA);
        selection.add(&_nodeB);
        QCOMPARE(_nodeA.selInterface()->orderId(), 1u);
        QCOMPARE(_nodeB.selInterface()->orderId(), 2u);
        selection.clear();
        selection.add(&_nodeB);
        QCOMPARE(_nodeB.selInterface()->orderId(), 3u);
        selection.add(&_nodeB);
        QCOMPARE(_nodeB.selInterface()->orderId(), 3u);
    }

    void gives_each_node_an_interface_that_knows_it()
    {
        SL_Selection selection(&_changes);
        QVERIFY(!_nodeA.selected());
        selection.add(&_nodeA);
        QVERIFY(_nodeA.selected());
        QCOMPARE(_nodeA.selInterface()->selectable(), &_nodeA);
        selection.remove(&_nodeA);
        QVERIFY(!_nodeA.selInterface());
    }

    void gives_subnodes_to_elements_alone()
    {
        SL_Selection selection(&_changes);
        MO_ElementModule element{QString()};
        selection.add(&element);
        selection.add(&_nodeA);
        QVERIFY(dynamic_cast<SLB_NodeWith3DSubNode*>(element.selInterface()));
        QVERIFY(!dynamic_cast<SLB_NodeWith3DSubNode*>(_nodeA.selInterface()));
    }

    void ignores_null_and_nodes_that_are_not_there()
    {
        SL_Selection selection(&_changes);
        const ChangeLog log(_changes);
        selection.add(nullptr);
        selection.remove(nullptr);
        selection.remove(&_nodeA);
        selection.clear();
        _changes.notify();
        QVERIFY(log.told().isEmpty());
    }

    void notes_changes_and_leaves_telling_to_the_caller()
    {
        SL_Selection selection(&_changes);
        ChangeLog log(_changes);
        selection.add(&_nodeA);
        QVERIFY(log.told().isEmpty());
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"selection"});
        selection.add(&_nodeA);
        _changes.notify();
        QVERIFY(log.told().isEmpty());
        selection.clear();
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"selection"});
    }

    void loses_a_node_that_dies_and_notes_it()
    {
        SL_Selection selection(&_changes);
        auto element = std::make_unique<MO_ElementModule>(QString());
        auto peg = std::make_unique<MO_PegModule>(QString());
        selection.add(element.get());
        selection.add(&_nodeA);
        selection.add(peg.get());
        _changes.notify();
        ChangeLog log(_changes);
        element.reset();
        peg.reset();
        QCOMPARE(selection.nodes(), Nodes{&_nodeA});
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"selection"});
    }

    void unselects_its_nodes_when_it_dies_first()
    {
        auto selection = std::make_unique<SL_Selection>(&_changes);
        selection->add(&_nodeA);
        selection.reset();
        QVERIFY(!_nodeA.selInterface());
        MO_PegModule dying{QString()};
        selection = std::make_unique<SL_Selection>(&_changes);
        selection->add(&dying);
        selection.reset();
    }

    void takes_a_node_out_of_the_selection_that_it_was_in()
    {
        SL_Selection first(&_changes), second(&_changes);
        first.add(&_nodeA);
        second.add(&_nodeA);
        QVERIFY(first.empty());
        QCOMPARE(second.nodes(), Nodes{&_nodeA});
        first.remove(&_nodeA);
        QVERIFY(_nodeA.selected());
    }
};

QTEST_GUILESS_MAIN(tst_SL_Selection)
#include "tst_SL_Selection.moc"
