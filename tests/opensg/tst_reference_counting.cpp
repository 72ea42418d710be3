// SPDX-License-Identifier: MIT
#include "Probe.h"

#include <OpenSG/OSGBaseFunctions.h>

#include <QTest>

#include <vector>

using namespace osg;

class tst_reference_counting : public QObject
{
    Q_OBJECT

private:
    /// A node without references that can be seen to die.
    static NodePtr probed() { return makeCoredNode<Probe>(); }

private slots:
    void initTestCase() { QVERIFY(osgInit(0, nullptr)); }
    void cleanup() { QCOMPARE(Probe::alive, 0); }

    void a_node_dies_with_its_last_reference()
    {
        const NodePtr node = probed();
        addRefCP(node);
        addRefCP(node);
        subRefCP(node);
        QCOMPARE(Probe::alive, 1);
        subRefCP(node);
        QCOMPARE(Probe::alive, 0);
    }

    void giving_back_a_reference_that_nobody_took_destroys()
    {
        const NodePtr node = probed();
        QCOMPARE(Probe::alive, 1);
        subRefCP(node);
        QCOMPARE(Probe::alive, 0);
        subRefCP(Probe::create());
        QCOMPARE(Probe::alive, 0);
    }

    void a_parent_owns_a_reference_of_each_child()
    {
        const NodeRefPtr root(Node::create());
        const NodePtr child = probed();
        root->addChild(child);
        addRefCP(child);
        root->subChild(child);
        QCOMPARE(Probe::alive, 1);
        QVERIFY(child->getParent() == NullFC);
        subRefCP(child);
        QCOMPARE(Probe::alive, 0);
    }

    void removing_an_unheld_child_destroys_it()
    {
        const NodeRefPtr root(Node::create());
        root->addChild(probed());
        root->addChild(probed());
        root->subChild(root->getChild(0));
        QCOMPARE(Probe::alive, 1);
        root->subChild(0u);
        QCOMPARE(Probe::alive, 0);
        QCOMPARE(root->getNChildren(), 0u);
    }

    void a_dying_parent_takes_its_unheld_children_along()
    {
        const NodePtr root = probed();
        addRefCP(root);
        for (int i = 0; i < 3; ++i) {
            const NodePtr child = probed();
            child->addChild(probed());
            root->addChild(child);
        }
        QCOMPARE(Probe::alive, 7);
        subRefCP(root);
        QCOMPARE(Probe::alive, 0);
    }

    void a_held_child_survives_its_parent_as_a_root()
    {
        const NodePtr root = probed();
        const NodeRefPtr child(probed());
        const NodePtr grandchild = probed();
        root->addChild(child);
        child->addChild(grandchild);
        subRefCP(root);
        QCOMPARE(Probe::alive, 2);
        QVERIFY(child->getParent() == NullFC);
        QVERIFY(grandchild->getParent() == child);
    }

    void moving_a_child_keeps_it_alive()
    {
        const NodeRefPtr from(Node::create());
        const NodeRefPtr to(Node::create());
        const NodePtr child = probed();
        from->addChild(child);
        to->addChild(child);
        QCOMPARE(Probe::alive, 1);
        to->insertChild(0, child);
        to->addChild(child);
        QCOMPARE(Probe::alive, 1);
        to->subChild(child);
        QCOMPARE(Probe::alive, 0);
    }

    void a_replaced_child_loses_its_reference()
    {
        const NodeRefPtr root(Node::create());
        const NodePtr first = probed();
        root->addChild(first);
        const NodePtr second = probed();
        root->replaceChild(0, second);
        QCOMPARE(Probe::alive, 1);
        QVERIFY(root->replaceChildBy(second, probed()));
        QCOMPARE(Probe::alive, 1);
    }

    void a_child_may_replace_the_node_above_it()
    {
        const NodeRefPtr root(Node::create());
        const NodePtr middle = probed();
        const NodePtr leaf = probed();
        root->addChild(middle);
        middle->addChild(leaf);
        QVERIFY(root->replaceChildBy(middle, leaf));
        QCOMPARE(Probe::alive, 1);
        QVERIFY(root->getChild(0) == leaf);
        QVERIFY(leaf->getParent() == root);
    }

    void a_child_that_dies_too_early_leaves_its_parent()
    {
        const NodeRefPtr root(Node::create());
        const NodePtr child = probed();
        root->addChild(child);
        subRefCP(child);
        QCOMPARE(Probe::alive, 0);
        QCOMPARE(root->getNChildren(), 0u);
    }

    void a_node_owns_a_reference_of_its_core()
    {
        const NodeRefPtr node(Node::create());
        const Probe::Ptr core = Probe::create();
        node->setCore(core);
        QCOMPARE(Probe::alive, 1);
        node->setCore(core);
        QCOMPARE(Probe::alive, 1);
        node->setCore(Probe::create());
        QCOMPARE(Probe::alive, 1);
        node->setCore(NullFC);
        QCOMPARE(Probe::alive, 0);
        QVERIFY(node->getCore() == NullFC);
    }

    void a_shared_core_dies_with_its_last_node()
    {
        const Probe::Ptr core = Probe::create();
        const NodePtr one = makeNodeFor(core);
        const NodePtr two = makeNodeFor(core);
        QVERIFY(one->getCore() == two->getCore());
        subRefCP(one);
        QCOMPARE(Probe::alive, 1);
        QVERIFY(two->getCore() == core);
        subRefCP(two);
        QCOMPARE(Probe::alive, 0);
    }

    void a_held_core_survives_its_node()
    {
        const RefPtr<Probe::Ptr> core(Probe::create());
        subRefCP(makeNodeFor(core));
        QCOMPARE(Probe::alive, 1);
    }

    void a_ref_ptr_owns_a_reference()
    {
        {
            NodeRefPtr one(probed());
            const NodeRefPtr two(one);
            QVERIFY(two == one);
            one = NullFC;
            QCOMPARE(Probe::alive, 1);
        }
        QCOMPARE(Probe::alive, 0);
    }

    void a_ref_ptr_lets_go_when_it_is_assigned()
    {
        NodeRefPtr holder;
        QVERIFY(holder == NullFC);
        holder = probed();
        holder = probed();
        QCOMPARE(Probe::alive, 1);
        const NodeRefPtr other(holder);
        holder = other;
        QCOMPARE(Probe::alive, 1);
        holder = probed();
        QCOMPARE(Probe::alive, 2);
        holder = NullFC;
        QCOMPARE(Probe::alive, 1);
    }

    void a_ref_ptr_keeps_a_child_of_what_it_lets_go()
    {
        NodeRefPtr holder(probed());
        holder->addChild(probed());
        holder = holder->getChild(0);
        QCOMPARE(Probe::alive, 1);
        QVERIFY(holder->getParent() == NullFC);
    }

    void a_ref_ptr_goes_where_its_pointer_goes()
    {
        const NodeRefPtr root(Node::create());
        const NodeRefPtr child(probed());
        root->addChild(child);
        const NodePtr plain = child;
        QVERIFY(plain == child && child == plain && root->findChild(child) == 0);
        QVERIFY(child->getParent() == root);
        QCOMPARE(&*child, child.get().getCPtr());
    }

    void a_very_deep_hierarchy_dies_without_a_deep_stack()
    {
        NodePtr root = probed();
        addRefCP(root);
        NodePtr deepest = root;
        for (int i = 0; i < 1'000'000; ++i) {
            const NodePtr child = Node::create();
            deepest->addChild(child);
            deepest = child;
        }
        deepest->setCore(Probe::create());
        QCOMPARE(Probe::alive, 2);
        subRefCP(root);
        QCOMPARE(Probe::alive, 0);
    }

    void a_very_wide_hierarchy_dies_as_well()
    {
        const NodePtr root = Node::create();
        for (int i = 0; i < 200'000; ++i)
            root->addChild(Node::create());
        root->getChild(199'999)->setCore(Probe::create());
        subRefCP(root);
        QCOMPARE(Probe::alive, 0);
    }
};

QTEST_APPLESS_MAIN(tst_reference_counting)
#include "tst_reference_counting.moc"
