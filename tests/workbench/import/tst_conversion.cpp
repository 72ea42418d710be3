// SPDX-License-Identifier: MIT
#include "ImportTesting.h"
#include "SceneOutline.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <QTest>

/// What becomes of the nodes of a file. A file that fails gives its error instead of an outline.
class tst_conversion : public QObject
{
    Q_OBJECT

private:
    ImportFolder _folder;

    QByteArrayList outline(const QString& name, const QByteArray& content) const
    {
        const ImportResult result = _folder.import(name, content);
        return result.succeeded() ? SceneOutline::lines(result.root)
                                  : QByteArrayList{result.error.toUtf8()};
    }
    QByteArrayList outline(const QByteArrayList& nodes, const QByteArray& more = {}) const
    {
        return outline("model.gltf", gltf(nodes, more));
    }
    static osg::Matrix matrixOf(const osg::NodePtr& node)
    {
        return osg::TransformPtr::dcast(node->getCore())->getMatrix();
    }
    using Lines = QByteArrayList;

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void a_named_node_with_a_matrix_is_a_key()
    {
        QCOMPARE(outline({R"({"name":"Top","children":[1]})",
                          R"({"name":"Arm","translation":[0.001,0,0]})"}),
                 Lines({"group Top", ".key Arm"}));
    }

    void a_named_node_that_only_groups_is_a_group()
    {
        QCOMPARE(outline({R"({"name":"Top","children":[1,2]})", R"({"name":"Parts"})",
                          R"({"name":"Still","matrix":[1,0,0,0,0,1,0,0,0,0,1,0,0,0,0,1]})"}),
                 Lines({"group Top", ".group Parts", ".group Still"}));
    }

    void a_named_node_with_a_mesh_is_a_key_above_its_geometry()
    {
        QCOMPARE(outline({R"({"name":"Top","children":[1]})", R"({"name":"Arm","mesh":0})"}),
                 Lines({"group Top", ".key Arm", "..geometry Triangle"}));
    }

    void geometry_comes_before_the_children()
    {
        QCOMPARE(outline({R"({"name":"Top","mesh":0,"children":[1,2]})", R"({"name":"First"})",
                          R"({"name":"Second"})"}),
                 Lines({"key Top", ".geometry Triangle", ".group First", ".group Second"}));
    }

    void a_node_without_a_name_is_a_transform()
    {
        QCOMPARE(outline({R"({"name":"Top","children":[1,2,3]})", "{}", R"({"name":"","mesh":1})",
                          R"({"translation":[1,0,0]})"}),
                 Lines({"group Top", ".transform", ".transform", "..geometry", ".transform"}));
    }

    void a_helper_is_a_transform_with_its_name()
    {
        QCOMPARE(outline({R"({"name":"Top","children":[1]})",
                          R"({"name":"Arm_$AssimpFbx$_Rotation","rotation":[1,0,0,0]})"}),
                 Lines({"group Top", ".transform Arm_$AssimpFbx$_Rotation"}));
    }

    void a_node_whose_transform_is_in_helpers_is_a_key()
    {
        QCOMPARE(outline({R"({"name":"Top","children":[1,3]})",
                          R"({"name":"Arm_$AssimpFbx$_Rotation","children":[2]})",
                          R"({"name":"Arm"})", R"({"name":"Leg","children":[4]})",
                          R"({"name":"Leg_$AssimpFbx$_GeometricScaling"})"}),
                 Lines({"group Top", ".transform Arm_$AssimpFbx$_Rotation", "..key Arm", ".key Leg",
                        "..transform Leg_$AssimpFbx$_GeometricScaling"}));
    }

    void an_animated_node_is_a_key()
    {
        const QByteArray animation =
            R"("animations":[{"channels":[{"sampler":0,"target":{"node":1,"path":"translation"}}],)"
            R"("samplers":[{"input":1,"output":0}]}])";
        QByteArray text = gltf(
            {R"({"name":"Top","children":[1,2]})", R"({"name":"Moving"})", R"({"name":"Still"})"},
            animation);
        text.replace(
            R"("accessors":[)",
            R"("accessors":[{"bufferView":0,"componentType":5126,"count":3,"type":"VEC3"},)"
            R"({"bufferView":0,"componentType":5126,"count":3,"type":"SCALAR"},)");
        QCOMPARE(outline("animated.gltf", text),
                 Lines({"group Top", ".key Moving", ".group Still"}));
    }

    void a_bone_is_a_key()
    {
        const QByteArray text =
            "xof 0303txt 0032\n"
            "Frame Top {\n Frame Bone { }\n Frame Other { }\n"
            " Frame Body {\n  Mesh Skin {\n   3; 0;0;0;, 1;0;0;, 0;1;0;;\n   1; 3;0,1,2;;\n"
            "   XSkinMeshHeader { 1; 1; 1; }\n"
            "   SkinWeights { \"Bone\"; 3; 0,1,2; 1.0,1.0,1.0;\n"
            "    1.0,0.0,0.0,0.0,0.0,1.0,0.0,0.0,0.0,0.0,1.0,0.0,0.0,0.0,0.0,1.0;; }\n"
            "  }\n }\n}\n";
        QCOMPARE(outline("skinned.x", text), Lines({"group Top", ".key Bone", ".group Other",
                                                    ".key Body", "..geometry Body_2"}));
    }

    void a_root_that_the_reader_added_is_no_key()
    {
        QCOMPARE(outline("upright.dae",
                         R"(<?xml version="1.0"?><COLLADA version="1.4.1" )"
                         R"(xmlns="http://www.collada.org/2005/11/COLLADASchema">)"
                         R"(<asset><up_axis>Z_UP</up_axis></asset><library_visual_scenes>)"
                         R"(<visual_scene id="s" name="Scene"><node id="id1" name="Arm">)"
                         R"(<translate>1 2 3</translate></node><node id="Unnamed"/><node/>)"
                         R"(</visual_scene></library_visual_scenes>)"
                         R"(<scene><instance_visual_scene url="#s"/></scene></COLLADA>)"),
                 Lines({"transform Scene", ".key Arm", ".group Unnamed", ".transform"}));
    }

    void matrices_are_columns()
    {
        const ImportResult result = _folder.import(
            "matrix.gltf",
            gltf({R"({"name":"Top","children":[1]})",
                  R"({"name":"Arm","matrix":[1,2,3,0,4,5,6,0,7,8,9,0,10,11,12,1]})"}));
        QCOMPARE(result.error, QString());
        const osg::Matrix matrix = matrixOf(SceneOutline::find(result.root, "Arm"));
        QVERIFY(matrix[0] == osg::Vec4f(1, 2, 3, 0));
        QVERIFY(matrix[1] == osg::Vec4f(4, 5, 6, 0));
        QVERIFY(matrix[2] == osg::Vec4f(7, 8, 9, 0));
        QVERIFY(matrix[3] == osg::Vec4f(10, 11, 12, 1));
    }

    void a_matrix_with_numbers_that_are_not_finite_moves_nothing()
    {
        const ImportResult result =
            _folder.import("infinite.gltf", gltf({R"({"name":"Top","children":[1]})",
                                                  R"({"name":"Arm","translation":[1e300,0,0]})"}));
        QCOMPARE(result.error, QString());
        const osg::NodePtr arm = SceneOutline::find(result.root, "Arm");
        QCOMPARE(SceneOutline::kindOf(arm), "key");
        QVERIFY(matrixOf(arm)[3] == osg::Vec4f(0, 0, 0, 1));
    }

    void instances_share_a_core()
    {
        const ImportResult result =
            _folder.import("instances.gltf",
                           gltf({R"({"name":"Top","children":[1,2]})",
                                 R"({"name":"Left","mesh":0})", R"({"name":"Right","mesh":0})"}));
        QCOMPARE(result.error, QString());
        const osg::NodePtr first = SceneOutline::find(result.root, "Triangle");
        const osg::NodePtr second = SceneOutline::find(result.root, "Triangle_2");
        QVERIFY(first != osg::NullFC && second != osg::NullFC && first != second);
        QVERIFY(first->getCore() == second->getCore());
        QCOMPARE(result.statistics.geometries, 2);
        QCOMPARE(result.statistics.meshes, 1);
    }

    void geometry_is_filled()
    {
        const ImportResult result =
            _folder.import("quad.obj", "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\ng Quad\nf 1 2 3 4\n");
        QCOMPARE(result.error, QString());
        const QList<osg::NodePtr> nodes = SceneOutline::nodes(result.root);
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(nodes.last()->getCore());
        QVERIFY(geometry != osg::NullFC);
        QCOMPARE(geometry->getIndices()->getSize(), 6U);
        QCOMPARE(geometry->getTypes()->getSize(), 1U);
        QCOMPARE(geometry->getNormals()->getSize(), geometry->getPositions()->getSize());
        QVERIFY(geometry->getNormals()->getValue(0) == osg::Vec3f(0, 0, 1));
        QCOMPARE(result.statistics.faces, 2);
    }

    void statistics_count_every_kind()
    {
        const ImportResult result = _folder.import(
            "kinds.gltf", gltf({R"({"name":"Top","children":[1,2,3]})",
                                R"({"name":"Arm","mesh":0})", R"({"name":"Arm","mesh":1})", "{}"}));
        QCOMPARE(result.statistics.groups, 1);
        QCOMPARE(result.statistics.keyTransforms, 2);
        QCOMPARE(result.statistics.transforms, 1);
        QCOMPARE(result.statistics.geometries, 2);
        QCOMPARE(result.statistics.renamed, 1);
        QCOMPARE(result.statistics.vertices, 6);
        QCOMPARE(result.statistics.nodes(), SceneOutline::nodes(result.root).size());
    }
};

QTEST_APPLESS_MAIN(tst_conversion)
#include "tst_conversion.moc"
