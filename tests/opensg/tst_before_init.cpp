// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QTest>

using namespace osg;

/// A program of its own, because the library starts only once in a process.
class tst_before_init : public QObject
{
    Q_OBJECT

private slots:
    void nothing_can_be_created()
    {
        QVERIFY(Node::create() == NullFC);
        QVERIFY(Group::create() == NullFC);
        QVERIFY(Transform::create() == NullFC);
        QVERIFY(KeyTransform::create() == NullFC);
        QVERIFY(Geometry::create() == NullFC);
        QVERIFY(GeoPTypesUI8::create() == NullFC);
        QVERIFY(GeoPositions3f::create() == NullFC);
        QVERIFY(makeNodeFor(NullFC) == NullFC);
        GroupPtr core;
        QVERIFY(makeCoredNode<Group>(&core) == NullFC);
        QVERIFY(core == NullFC);
    }

    void types_have_names_but_no_parents()
    {
        QCOMPARE(KeyTransform::getClassType().getCName(), "KeyTransform");
        QVERIFY(KeyTransform::getClassType().getParent() == nullptr);
        QVERIFY(Node::getClassType().getParent() == nullptr);
        QVERIFY(!KeyTransform::getClassType().isDerivedFrom(Transform::getClassType()));
        QVERIFY(KeyTransform::getClassType().isDerivedFrom(KeyTransform::getClassType()));
    }

    void null_is_still_harmless()
    {
        addRefCP(NullFC);
        subRefCP(NullFC);
        beginEditCP(NullFC);
        endEditCP(NullFC);
        setName(NullFC, "name");
        QVERIFY(getName(NullFC) == nullptr);
        QVERIFY(NodePtr::dcast(NullFC) == NullFC);
    }

    void an_end_without_a_start_is_told() { QVERIFY(!osgExit()); }

    void init_makes_everything_work()
    {
        QVERIFY(osgInit(0, nullptr));
        QVERIFY(KeyTransform::getClassType().getParent() == &Transform::getClassType());
        const NodeRefPtr node(makeCoredNode<Group>());
        QVERIFY(node != NullFC);
    }

    void a_second_init_changes_nothing()
    {
        QVERIFY(osgInit(0, nullptr));
        QVERIFY(KeyTransform::getClassType().getParent() == &Transform::getClassType());
    }

    void exit_ends_creation_and_spares_what_is_held()
    {
        const NodeRefPtr kept(makeCoredNode<Transform>());
        kept->addChild(makeCoredNode<Group>());
        setName(kept, "kept");

        QVERIFY(osgExit());

        QVERIFY(Node::create() == NullFC);
        QCOMPARE(getName(kept), "kept");
        QCOMPARE(kept->getNChildren(), 1u);
    }
};

QTEST_APPLESS_MAIN(tst_before_init)
#include "tst_before_init.moc"
