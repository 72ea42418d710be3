// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QTest>

using namespace osg;

class tst_geometry : public QObject
{
    Q_OBJECT

private:
    GeometryRefPtr geometry;

private slots:
    void initTestCase() { QVERIFY(osgInit(0, nullptr)); }
    void init() { geometry = Geometry::create(); }
    void cleanupTestCase() { geometry = NullFC; }

    void properties_are_null_at_first()
    {
        QVERIFY(geometry->getTypes() == NullFC);
        QVERIFY(geometry->getLengths() == NullFC);
        QVERIFY(geometry->getPositions() == NullFC);
        QVERIFY(geometry->getNormals() == NullFC);
        QVERIFY(geometry->getIndices() == NullFC);
    }

    void properties_are_kept()
    {
        const GeoPTypesPtr types = GeoPTypesUI8::create();
        const GeoPLengthsPtr lengths = GeoPLengthsUI32::create();
        const GeoPositionsPtr positions = GeoPositions3f::create();
        const GeoNormalsPtr normals = GeoNormals3f::create();
        const GeoIndicesPtr indices = GeoIndicesUI32::create();
        geometry->setTypes(types);
        geometry->setLengths(lengths);
        geometry->setPositions(positions);
        geometry->setNormals(normals);
        geometry->setIndices(indices);
        QVERIFY(geometry->getTypes() == types);
        QVERIFY(geometry->getLengths() == lengths);
        QVERIFY(geometry->getPositions() == positions);
        QVERIFY(geometry->getNormals() == normals);
        QVERIFY(geometry->getIndices() == indices);
        geometry->setIndices(NullFC);
        QVERIFY(geometry->getIndices() == NullFC);
    }

    void a_shared_property_outlives_one_of_its_geometries()
    {
        const GeometryRefPtr other(Geometry::create());
        const GeoPositions3fPtr positions = GeoPositions3f::create();
        geometry->setPositions(positions);
        other->setPositions(positions);
        positions->push_back(Pnt3f(1, 2, 3));
        geometry = NullFC;
        QVERIFY(other->getPositions()->getValue(0) == Pnt3f(1, 2, 3));
    }

    void a_property_holds_values()
    {
        const GeoIndicesUI32Ptr indices = GeoIndicesUI32::create();
        const GeoIndicesPtr property = indices;
        geometry->setIndices(property);
        property->push_back(7);
        property->addValue(8);
        QCOMPARE(property->size(), 2u);
        QCOMPARE(property->getSize(), 2u);
        property->setValue(9, 0);
        QCOMPARE(property->getValue(0), 9u);
        QCOMPARE(property->getValue(1), 8u);
        property->resize(3);
        QCOMPARE(property->getValue(2), 0u);
        QCOMPARE(indices->getField().size(), std::size_t(3));
        property->clear();
        QCOMPARE(property->size(), 0u);
    }

    void types_are_stored_small_and_read_wide()
    {
        const GeoPTypesUI8Ptr types = GeoPTypesUI8::create();
        geometry->setTypes(types);
        types->push_back(4);
        static_assert(sizeof(types->getField()[0]) == 1);
        static_assert(std::is_same_v<decltype(types->getValue(0)), UInt32>);
        QCOMPARE(types->getValue(0), 4u);
    }

    void a_property_is_found_by_its_storage()
    {
        geometry->setNormals(GeoNormals3f::create());
        QVERIFY(GeoNormals3fPtr::dcast(geometry->getNormals()) == geometry->getNormals());
        QVERIFY(GeoPositions3fPtr::dcast(geometry->getNormals()) == NullFC);
    }

    void a_property_can_be_named()
    {
        geometry->setNormals(GeoNormals3f::create());
        setName(geometry->getNormals(), "normals");
        QCOMPARE(getName(geometry->getNormals()), "normals");
    }
};

QTEST_APPLESS_MAIN(tst_geometry)
#include "tst_geometry.moc"
