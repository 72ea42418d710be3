// SPDX-License-Identifier: MIT
#include "Probe.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>

#include <QTest>

using namespace osg;

class tst_field_container_type : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osgInit(0, nullptr)); }

    void knows_its_name_and_parent_data()
    {
        QTest::addColumn<FieldContainerType*>("type");
        QTest::addColumn<FieldContainerType*>("parent");
        const auto row = [](FieldContainerType& type, FieldContainerType* parent,
                            const char* name) { QTest::newRow(name) << &type << parent; };
        row(FieldContainer::getClassType(), nullptr, "FieldContainer");
        row(AttachmentContainer::getClassType(), &FieldContainer::getClassType(),
            "AttachmentContainer");
        row(Node::getClassType(), &AttachmentContainer::getClassType(), "Node");
        row(NodeCore::getClassType(), &AttachmentContainer::getClassType(), "NodeCore");
        row(Group::getClassType(), &NodeCore::getClassType(), "Group");
        row(Transform::getClassType(), &Group::getClassType(), "Transform");
        row(KeyTransform::getClassType(), &Transform::getClassType(), "KeyTransform");
        row(Drawable::getClassType(), &NodeCore::getClassType(), "Drawable");
        row(MaterialDrawable::getClassType(), &Drawable::getClassType(), "MaterialDrawable");
        row(Geometry::getClassType(), &MaterialDrawable::getClassType(), "Geometry");
        row(GeoPTypes::getClassType(), &AttachmentContainer::getClassType(), "GeoPTypes");
        row(GeoPTypesUI8::getClassType(), &GeoPTypes::getClassType(), "GeoPTypesUI8");
        row(GeoPLengthsUI32::getClassType(), &GeoPLengths::getClassType(), "GeoPLengthsUI32");
        row(GeoPositions3f::getClassType(), &GeoPositions::getClassType(), "GeoPositions3f");
        row(GeoNormals3f::getClassType(), &GeoNormals::getClassType(), "GeoNormals3f");
        row(GeoIndicesUI32::getClassType(), &GeoIndices::getClassType(), "GeoIndicesUI32");
        row(Probe::getClassType(), &Transform::getClassType(), "Probe");
    }

    void knows_its_name_and_parent()
    {
        QFETCH(FieldContainerType*, type);
        QFETCH(FieldContainerType*, parent);
        QCOMPARE(type->getCName(), QTest::currentDataTag());
        QCOMPARE(type->getName().str(), QTest::currentDataTag());
        QCOMPARE(type->getParent(), parent);
        QVERIFY(type->isDerivedFrom(*type));
        QVERIFY(type->isDerivedFrom(FieldContainer::getClassType()));
        QVERIFY(!parent || (type->isDerivedFrom(*parent) && !parent->isDerivedFrom(*type)));
    }

    void a_transform_is_a_group_and_a_geometry_is_not()
    {
        QVERIFY(Transform::getClassType().isDerivedFrom(Group::getClassType()));
        QVERIFY(KeyTransform::getClassType().isDerivedFrom(Group::getClassType()));
        QVERIFY(!Geometry::getClassType().isDerivedFrom(Group::getClassType()));
        QVERIFY(!Geometry::getClassType().isDerivedFrom(Transform::getClassType()));
        QVERIFY(!Node::getClassType().isDerivedFrom(NodeCore::getClassType()));
    }

    void types_are_equal_to_themselves_only()
    {
        QVERIFY(Node::getClassType() == Node::getClassType());
        QVERIFY(Group::getClassType() != Transform::getClassType());
    }

    void an_instance_tells_its_own_type()
    {
        KeyTransformPtr key;
        const NodeRefPtr node(makeCoredNode<KeyTransform>(&key));
        const NodeCorePtr core = node->getCore();
        const TransformPtr transform = key;
        QVERIFY(core->getType() == KeyTransform::getClassType());
        QVERIFY(transform->getType() == KeyTransform::getClassType());
        QVERIFY(node->getType() == Node::getClassType());
        const NodeCore& constant = *core;
        QVERIFY(constant.getType() == KeyTransform::getClassType());
        QVERIFY(node->getCore()->getType().isDerivedFrom(Transform::getClassType()));
        QVERIFY(!node->getCore()->getType().isDerivedFrom(Geometry::getClassType()));
    }

    void types_that_come_late_find_their_parents_in_any_order()
    {
        const FieldContainerType second("LateChild", "LateParent");
        QVERIFY(second.getParent() == nullptr);
        {
            const FieldContainerType first("LateParent", "Group");
            QVERIFY(first.getParent() == &Group::getClassType());
            QVERIFY(second.getParent() == &first);
            QVERIFY(second.isDerivedFrom(NodeCore::getClassType()));
        }
        QVERIFY(second.getParent() == nullptr);
    }
};

QTEST_APPLESS_MAIN(tst_field_container_type)
#include "tst_field_container_type.moc"
