// SPDX-License-Identifier: MIT
#include "Probe.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>

#include <QTest>

#include <map>

using namespace osg;

class tst_field_container_ptr : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osgInit(0, nullptr)); }

    void is_null_by_default()
    {
        const NodePtr null;
        QVERIFY(!null);
        QVERIFY(null == NullFC);
        QVERIFY(NullFC == null);
        QVERIFY(null == nullptr);
        QVERIFY(null.getCPtr() == nullptr);
        QVERIFY(null == GroupPtr());
    }

    void tells_that_it_has_a_target()
    {
        const NodeRefPtr held(Node::create());
        const NodePtr pointer = held;
        bool isSet = false;
        if (pointer)
            isSet = true;
        QVERIFY(isSet);
        QVERIFY(pointer != NullFC);
        QVERIFY(NullFC != pointer);
        QVERIFY(pointer != nullptr);
    }

    void null_can_be_assigned_and_passed()
    {
        const NodeRefPtr held(Node::create());
        NodePtr pointer = held;
        pointer = NullFC;
        QVERIFY(!pointer);
        const NodePtr chosen = pointer ? pointer : NullFC;
        QVERIFY(!chosen);
    }

    void gives_its_target()
    {
        const NodeRefPtr held(Node::create());
        const NodePtr pointer = held;
        Node* const target = pointer.getCPtr();
        QVERIFY(target != nullptr);
        QCOMPARE(&*pointer, target);
        QCOMPARE(pointer.operator->(), target);
        QVERIFY(NodePtr(target) == pointer);
    }

    void converts_to_the_pointers_of_base_types()
    {
        const KeyTransformPtr key = KeyTransform::create();
        const NodeRefPtr holder(makeNodeFor(key));
        const TransformPtr transform = key;
        const GroupPtr group = key;
        const NodeCorePtr core = key;
        const AttachmentContainerPtr attachments = key;
        const FieldContainerPtr container = key;
        QVERIFY(transform == key && group == key && core == key && attachments == key);
        QCOMPARE(container.getCPtr(), static_cast<FieldContainer*>(key.getCPtr()));
    }

    void dcast_finds_the_type_of_the_target()
    {
        const TransformPtr transform = KeyTransform::create();
        const NodeRefPtr holder(makeNodeFor(transform));
        const NodeCorePtr core = transform;
        QVERIFY(GroupPtr::dcast(core) == core);
        QVERIFY(TransformPtr::dcast(core) == core);
        QVERIFY(KeyTransformPtr::dcast(core) == core);
        QVERIFY(FieldContainerPtr::dcast(core) == core);
        QCOMPARE(KeyTransformPtr::dcast(core)->getMatrix(), Matrix());
    }

    void dcast_gives_null_for_another_type()
    {
        const TransformPtr transform = Transform::create();
        const NodeRefPtr holder(makeNodeFor(transform));
        QVERIFY(KeyTransformPtr::dcast(transform) == NullFC);
        QVERIFY(GeometryPtr::dcast(transform) == NullFC);
        QVERIFY(NodePtr::dcast(transform) == NullFC);
        QVERIFY(Probe::Ptr::dcast(transform) == NullFC);
        QVERIFY(NodeCorePtr::dcast(NodePtr(holder)) == NullFC);
    }

    void dcast_gives_null_for_null()
    {
        QVERIFY(TransformPtr::dcast(NodeCorePtr()) == NullFC);
        QVERIFY(TransformPtr::dcast(NullFC) == NullFC);
    }

    void is_ordered_by_address()
    {
        const NodeRefPtr one(Node::create());
        const NodeRefPtr two(Node::create());
        const NodePtr a = one;
        const NodePtr b = two;
        QVERIFY((a < b) != (b < a));
        QVERIFY(!(a < a));
        QVERIFY(NodePtr() < a);
        const NodeRefPtr holder(makeCoredNode<Group>());
        QVERIFY((a < holder->getCore()) != (holder->getCore() < a));
    }

    void is_a_key_of_a_map()
    {
        const NodeRefPtr one(Node::create());
        const NodeRefPtr two(Node::create());
        std::map<NodePtr, int> numbers{{one, 1}, {two, 2}};
        QCOMPARE(numbers.at(one), 1);
        QCOMPARE(numbers.at(two), 2);
        QVERIFY(!numbers.contains(NullFC));
    }

    void holds_no_reference()
    {
        Probe::Ptr core;
        const NodePtr node = makeCoredNode<Probe>(&core);
        const int alive = Probe::alive;
        {
            const NodePtr another = node;
            const NodeCorePtr anotherCore = core;
            QVERIFY(another == node && anotherCore == core);
        }
        QCOMPARE(Probe::alive, alive);
        subRefCP(node);
        QCOMPARE(Probe::alive, alive - 1);
    }
};

QTEST_APPLESS_MAIN(tst_field_container_ptr)
#include "tst_field_container_ptr.moc"
