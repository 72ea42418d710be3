// SPDX-License-Identifier: MIT
#include "workbench/import/FormatHabits.h"

#include <QTest>
#include <assimp/importerdesc.h>
#include <assimp/mesh.h>
#include <assimp/scene.h>

class tst_format_habits : public QObject
{
    Q_OBJECT

private:
    static FormatHabits habits(const char* name, const char* extensions,
                               const std::string& path = "folder/model")
    {
        aiImporterDesc reader{};
        reader.mName = name;
        reader.mFileExtensions = extensions;
        return FormatHabits(&reader, path);
    }
    const FormatHabits _gltf = habits("glTF2 Importer", "gltf glb");
    const FormatHabits _fbx = habits("Autodesk FBX Importer", "fbx");
    const FormatHabits _collada = habits("Collada Importer", "dae zae xml");
    const FormatHabits _ifc = habits("Industry Foundation Classes (IFC) Importer", "ifc ifczip");
    const FormatHabits _other = habits("Wavefront Object Importer", "obj");

    static std::string nodeName(const FormatHabits& habits, const std::string& name)
    {
        aiNode node;
        node.mName = aiString(name);
        return habits.nodeName(node);
    }
    static std::string meshName(const FormatHabits& habits, const std::string& name)
    {
        aiMesh mesh;
        mesh.mName = aiString(name);
        return habits.meshName(mesh);
    }

private slots:
    void numbers_that_stand_in_for_names_are_no_names()
    {
        QVERIFY(nodeName(_gltf, "nodes[0]").empty());
        QVERIFY(nodeName(_gltf, "nodes[123]").empty());
        QVERIFY(meshName(_gltf, "meshes[4]").empty());
        QVERIFY(meshName(_gltf, "meshes[4]-12").empty());
        QVERIFY(nodeName(_collada, "$ColladaAutoName$_7").empty());
    }

    void names_that_look_similar_are_names()
    {
        for (const char* name :
             {"nodes[]", "nodes[x]", "nodes[1]x", "nodes", "nodes[1", "nodes[1]-"})
            QCOMPARE(nodeName(_gltf, name), std::string(name));
        QCOMPARE(nodeName(_other, "nodes[0]"), std::string("nodes[0]"));
        QCOMPARE(meshName(_other, "meshes[0]"), std::string("meshes[0]"));
    }

    void a_name_ends_at_its_first_zero()
    {
        QCOMPARE(nodeName(_other, std::string("Arm\0Leg", 7)), std::string("Arm"));
        QVERIFY(nodeName(_other, std::string("\0Leg", 4)).empty());
    }

    void a_root_that_is_named_by_the_path_gets_the_name_of_the_file()
    {
        QCOMPARE(nodeName(_other, "folder/model"), std::string("model"));
        QCOMPARE(nodeName(_other, "folder/part"), std::string("folder/part"));
    }

    void dollars_mark_helpers_except_where_they_are_ordinary()
    {
        QVERIFY(_fbx.isHelper("Arm_$AssimpFbx$_Rotation"));
        QVERIFY(_other.isHelper("$dummy_root"));
        QVERIFY(!_other.isHelper("Arm"));
        QVERIFY(!_ifc.isHelper("1Qvf0xqDT4HXo8jI81mHB$"));
    }

    void roots_that_readers_add_are_known()
    {
        QVERIFY(_other.isAddedRoot("<3DSRoot>"));
        QVERIFY(!_other.isAddedRoot("Root"));
        QVERIFY(!_other.isAddedRoot("<>"));
        QVERIFY(!_other.isAddedRoot(""));
        QVERIFY(_fbx.isAddedRoot("RootNode"));
        QVERIFY(!_gltf.isAddedRoot("RootNode"));
        QVERIFY(_collada.isAddedRoot("Scene"));
    }

    void an_unknown_reader_has_no_habits()
    {
        const FormatHabits unknown(nullptr, "model");
        QCOMPARE(nodeName(unknown, "nodes[0]"), std::string("nodes[0]"));
        QVERIFY(!unknown.isCollada());
    }
};

QTEST_APPLESS_MAIN(tst_format_habits)
#include "tst_format_habits.moc"
