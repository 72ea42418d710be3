// SPDX-License-Identifier: MIT
#include "workbench/import/GeometryBuilder.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QTest>
#include <assimp/mesh.h>
#include <limits>
#include <vector>

namespace {

/// A mesh of five vertices, four of them the corners of a square, with the given faces.
class SquareMesh : public aiMesh
{
public:
    explicit SquareMesh(const std::vector<std::vector<unsigned>>& faces)
    {
        mNumVertices = 5;
        mVertices = new aiVector3D[5]{{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {9, 9, 9}};
        mNumFaces = static_cast<unsigned>(faces.size());
        mFaces = new aiFace[mNumFaces];
        for (unsigned i = 0; i < mNumFaces; ++i) {
            mFaces[i].mNumIndices = static_cast<unsigned>(faces[i].size());
            mFaces[i].mIndices = new unsigned[faces[i].size()];
            std::copy(faces[i].begin(), faces[i].end(), mFaces[i].mIndices);
        }
    }
};

template <class Property>
std::vector<osg::UInt32> values(const Property& property)
{
    std::vector<osg::UInt32> all;
    for (osg::UInt32 i = 0; i < property->getSize(); ++i)
        all.push_back(property->getValue(i));
    return all;
}
using Values = std::vector<osg::UInt32>;

} // namespace

class tst_geometry_builder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }

    void triangles_in_a_row_are_one_primitive()
    {
        const GeometryBuilder builder(SquareMesh({{0, 1, 2}, {0, 2, 3}}));
        QVERIFY(values(builder.geometry()->getTypes()) == Values({4}));
        QVERIFY(values(builder.geometry()->getLengths()) == Values({6}));
        QVERIFY(values(builder.geometry()->getIndices()) == Values({0, 1, 2, 0, 2, 3}));
        QCOMPARE(builder.faces(), 2);
        QCOMPARE(builder.vertices(), 5);
    }

    void faces_of_other_kinds_begin_primitives_of_their_own()
    {
        const GeometryBuilder builder(
            SquareMesh({{0}, {1}, {0, 1}, {0, 1, 2}, {0, 1, 2, 3}, {3, 2, 1, 0}, {0, 1, 2}}));
        QVERIFY(values(builder.geometry()->getTypes()) == Values({0, 1, 4, 9, 9, 4}));
        QVERIFY(values(builder.geometry()->getLengths()) == Values({2, 2, 3, 4, 4, 3}));
        QCOMPARE(builder.geometry()->getIndices()->getSize(), 18U);
    }

    void faces_with_vertices_that_do_not_exist_are_left_out()
    {
        const GeometryBuilder builder(SquareMesh({{0, 1, 5}, {0, 1, 2}, {4000000000U}}));
        QVERIFY(values(builder.geometry()->getIndices()) == Values({0, 1, 2}));
        QCOMPARE(builder.faces(), 1);
    }

    void positions_are_copied()
    {
        const GeometryBuilder builder(SquareMesh({{0, 1, 2}}));
        QVERIFY(builder.geometry()->getPositions()->getValue(2) == osg::Pnt3f(2, 2, 0));
    }

    void coordinates_that_are_not_finite_become_zero()
    {
        SquareMesh mesh({{0, 1, 2}});
        mesh.mVertices[0].x = std::numeric_limits<float>::quiet_NaN();
        mesh.mVertices[0].y = std::numeric_limits<float>::infinity();
        const GeometryBuilder builder(mesh);
        QVERIFY(builder.geometry()->getPositions()->getValue(0) == osg::Pnt3f(0, 0, 0));
        QVERIFY(builder.geometry()->getNormals()->getValue(0) == osg::Vec3f(0, 0, 1));
    }

    void normals_of_the_mesh_are_kept()
    {
        SquareMesh mesh({{0, 1, 2}});
        mesh.mNormals = new aiVector3D[5];
        mesh.mNormals[1] = {1, 0, 0};
        const GeometryBuilder builder(mesh);
        QVERIFY(builder.geometry()->getNormals()->getValue(1) == osg::Vec3f(1, 0, 0));
    }

    void normals_that_are_missing_are_made_from_the_faces()
    {
        const GeometryBuilder builder(SquareMesh({{2, 1, 0}, {3, 2, 0}}));
        for (osg::UInt32 i = 0; i < 4; ++i)
            QVERIFY(builder.geometry()->getNormals()->getValue(i) == osg::Vec3f(0, 0, -1));
        QVERIFY(builder.geometry()->getNormals()->getValue(4) == osg::Vec3f(0, 0, 1));
    }

    void an_empty_mesh_has_empty_properties()
    {
        const GeometryBuilder builder{aiMesh()};
        QCOMPARE(builder.geometry()->getPositions()->getSize(), 0U);
        QCOMPARE(builder.geometry()->getNormals()->getSize(), 0U);
        QCOMPARE(builder.geometry()->getTypes()->getSize(), 0U);
        QCOMPARE(builder.geometry()->getLengths()->getSize(), 0U);
        QCOMPARE(builder.geometry()->getIndices()->getSize(), 0U);
    }
};

QTEST_APPLESS_MAIN(tst_geometry_builder)
#include "tst_geometry_builder.moc"
