// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>

#include <QTest>

#include <vector>

using namespace osg;

class tst_node : public QObject
{
    Q_OBJECT

private:
    NodeRefPtr root;
    NodePtr a, b, c;

    std::vector<NodePtr> children(const NodePtr& node) const
    {
        std::vector<NodePtr> result;
        for (UInt32 i = 0; i < node->getNChildren(); ++i)
            result.push_back(node->getChild(i));
        return result;
    }
    typedef std::vector<NodePtr> Nodes;

private slots:
    void initTestCase() { QVERIFY(osgInit(0, nullptr)); }

    void init()
    {
        root = Node::create();
        for (NodePtr* child : {&a, &b, &c}) {
            *child = Node::create();
            root->addChild(*child);
        }
    }
    void cleanupTestCase() { root = NullFC; }

    void starts_alone_and_empty()
    {
        const NodeRefPtr node(Node::create());
        QCOMPARE(node->getNChildren(), 0u);
        QVERIFY(node->getParent() == NullFC);
        QVERIFY(node->getCore() == NullFC);
    }

    void makes_a_node_with_a_core()
    {
        const TransformPtr core = Transform::create();
        const NodeRefPtr node(makeNodeFor(core));
        QVERIFY(node->getCore() == core);

        const NodeRefPtr cored(makeCoredNode<Geometry>());
        QVERIFY(GeometryPtr::dcast(cored->getCore()) != NullFC);

        KeyTransformPtr key;
        const NodeRefPtr keyNode(makeCoredNode<KeyTransform>(&key));
        QVERIFY(key != NullFC);
        QVERIFY(keyNode->getCore() == key);

        const NodeRefPtr coreless(makeNodeFor(NullFC));
        QVERIFY(coreless != NullFC);
        QVERIFY(coreless->getCore() == NullFC);
    }

    void adds_children_in_order()
    {
        QCOMPARE(root->getNChildren(), 3u);
        QVERIFY(children(root) == Nodes({a, b, c}));
        QVERIFY(a->getParent() == root && b->getParent() == root && c->getParent() == root);
    }

    void adding_an_own_child_again_moves_it_last()
    {
        root->addChild(a);
        QVERIFY(children(root) == Nodes({b, c, a}));
        root->addChild(a);
        QVERIFY(children(root) == Nodes({b, c, a}));
        QVERIFY(a->getParent() == root);
    }

    void adding_moves_a_child_from_its_old_parent()
    {
        a->addChild(b);
        QVERIFY(children(root) == Nodes({a, c}));
        QVERIFY(children(a) == Nodes({b}));
        QVERIFY(b->getParent() == a);
    }

    void adding_null_is_ignored()
    {
        root->addChild(NullFC);
        root->insertChild(0, NullFC);
        root->replaceChild(0, NullFC);
        QVERIFY(!root->replaceChildBy(a, NullFC));
        root->subChild(NullFC);
        QVERIFY(children(root) == Nodes({a, b, c}));
    }

    void inserts_before_an_index()
    {
        const NodePtr first = Node::create();
        const NodePtr middle = Node::create();
        const NodePtr last = Node::create();
        root->insertChild(0, first);
        root->insertChild(2, middle);
        root->insertChild(5, last);
        QVERIFY(children(root) == Nodes({first, a, middle, b, c, last}));
        QVERIFY(middle->getParent() == root);
    }

    void inserting_an_own_child_moves_it()
    {
        root->insertChild(0, c);
        QVERIFY(children(root) == Nodes({c, a, b}));
        root->insertChild(1, c);
        QVERIFY(children(root) == Nodes({a, c, b}));
        root->insertChild(root->getNChildren(), a);
        QVERIFY(children(root) == Nodes({c, b, a}));
    }

    void inserting_beyond_the_end_puts_it_last()
    {
        const NodePtr far = Node::create();
        root->insertChild(1000, far);
        QVERIFY(children(root) == Nodes({a, b, c, far}));
    }

    void replaces_by_index()
    {
        const NodeRefPtr old(b);
        const NodePtr added = Node::create();
        root->replaceChild(1, added);
        QVERIFY(children(root) == Nodes({a, added, c}));
        QVERIFY(added->getParent() == root);
        QVERIFY(old->getParent() == NullFC);
    }

    void replaces_by_a_child_of_its_own()
    {
        root->replaceChild(2, a);
        QVERIFY(children(root) == Nodes({b, a}));
        root->replaceChild(0, a);
        QVERIFY(children(root) == Nodes({a}));
        root->replaceChild(0, a);
        QVERIFY(children(root) == Nodes({a}));
    }

    void replaces_a_known_child_only()
    {
        const NodePtr added = Node::create();
        QVERIFY(root->replaceChildBy(b, added));
        QVERIFY(children(root) == Nodes({a, added, c}));
        QVERIFY(root->replaceChildBy(a, a));
        QVERIFY(children(root) == Nodes({a, added, c}));

        const NodeRefPtr stranger(Node::create());
        QVERIFY(!root->replaceChildBy(stranger, a));
        QVERIFY(!root->replaceChildBy(NullFC, a));
        QVERIFY(children(root) == Nodes({a, added, c}));
    }

    void finds_its_children()
    {
        QCOMPARE(root->findChild(a), 0);
        QCOMPARE(root->findChild(c), 2);
        QCOMPARE(root->findChild(root), -1);
        QCOMPARE(root->findChild(NullFC), -1);
        QCOMPARE(a->findChild(b), -1);
    }

    void removes_children()
    {
        const NodeRefPtr kept(b);
        root->subChild(b);
        QVERIFY(children(root) == Nodes({a, c}));
        QVERIFY(kept->getParent() == NullFC);
        root->subChild(1u);
        QVERIFY(children(root) == Nodes({a}));
    }

    void removing_a_stranger_or_out_of_range_is_ignored()
    {
        const NodeRefPtr stranger(Node::create());
        root->subChild(stranger);
        root->subChild(3u);
        a->subChild(b);
        root->replaceChild(3, stranger);
        QVERIFY(children(root) == Nodes({a, b, c}));
        QVERIFY(stranger->getParent() == NullFC);
    }

    void field_masks_are_distinct()
    {
        static_assert((Node::ChildrenFieldMask & Node::CoreFieldMask) == 0);
        static_assert((Node::ChildrenFieldMask & Node::ParentFieldMask) == 0);
        static_assert((Node::AttachmentsFieldMask & Node::ChildrenFieldMask) == 0);
        static_assert((Transform::MatrixFieldMask & Transform::AttachmentsFieldMask) == 0);
        static_assert((FieldBits::AllFields & Node::ChildrenFieldMask) != 0);
        static_assert(sizeof(BitVector) == 8);
    }
};

QTEST_APPLESS_MAIN(tst_node)
#include "tst_node.moc"
