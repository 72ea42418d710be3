// SPDX-License-Identifier: MIT
#include "ImportTesting.h"
#include "SceneOutline.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QSet>
#include <QTest>

class tst_unusual_names : public QObject
{
    Q_OBJECT

private:
    ImportFolder _folder;

    static QByteArray node(const QByteArray& name, const QByteArray& rest = {})
    {
        return "{\"name\":\"" + name + "\"" + rest + "}";
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void key_nodes_choose_before_groups_and_meshes()
    {
        const ImportResult result =
            _folder.import("doubled.gltf", gltf({node("Triangle", R"(,"children":[1,2,3])"),
                                                 node("Arm"), node("Arm", R"(,"mesh":0)"),
                                                 node("Triangle", R"(,"translation":[1,0,0])")}));
        QCOMPARE(SceneOutline::lines(result.root),
                 QByteArrayList({"group Triangle_2", ".group Arm_2", ".key Arm",
                                 "..geometry Triangle_3", ".key Triangle"}));
    }

    void a_number_never_takes_a_name_of_the_file()
    {
        const ImportResult result = _folder.import(
            "numbered.gltf",
            gltf({node("Top", R"(,"children":[1,2,3])"), node("Arm"), node("Arm"), node("Arm_2")}));
        QCOMPARE(SceneOutline::lines(result.root),
                 QByteArrayList({"group Top", ".group Arm", ".group Arm_3", ".group Arm_2"}));
    }

    void bytes_that_are_no_text_are_kept()
    {
        const QByteArray bytes("x\xff\xfe\xc0y");
        const ImportResult result = _folder.import(
            "bytes.x", "xof 0303txt 0032\nFrame Top {\n Frame " + bytes + " {\n }\n}\n");
        QCOMPARE(result.error, QString());
        QCOMPARE(SceneOutline::lines(result.root),
                 QByteArrayList({"group Top", ".group " + bytes}));
    }

    void letters_of_all_scripts_are_kept()
    {
        const ImportResult result =
            _folder.import("script.gltf", gltf({node("Top", R"(,"children":[1])"), node("右腕")}));
        QCOMPARE(SceneOutline::lines(result.root), QByteArrayList({"group Top", ".group 右腕"}));
    }

    void names_that_differ_only_after_a_zero_are_made_different()
    {
        const ImportResult result = _folder.import(
            "zero.gltf", gltf({node("Top", R"(,"children":[1,2])"), node(R"(Arm\u0000Left)"),
                               node(R"(Arm\u0000Right)")}));
        QCOMPARE(result.error, QString());
        QCOMPARE(SceneOutline::lines(result.root),
                 QByteArrayList({"group Top", ".group Arm", ".group Arm_2"}));
    }

    void very_long_names_keep_their_beginning_and_stay_different()
    {
        const QByteArray name(10000, 'n');
        const ImportResult result = _folder.import(
            "long.gltf", gltf({node("Top", R"(,"children":[1,2])"), node(name), node(name)}));
        QCOMPARE(result.error, QString());
        const QList<osg::NodePtr> nodes = SceneOutline::nodes(result.root);
        QCOMPARE(nodes.size(), 3);
        const QByteArray first = SceneOutline::nameOf(nodes[1]);
        QVERIFY(first.size() > 1000 && name.startsWith(first));
        QCOMPARE(SceneOutline::nameOf(nodes[2]), first + "_2");
    }

    void a_hundred_thousand_equal_names_become_different()
    {
        constexpr int count = 100000;
        QByteArray text = "xof 0303txt 0032\nFrame Top {\n";
        for (int i = 0; i < count; ++i)
            text += "Frame Arm { }\n";
        const ImportResult result = _folder.import("equal.x", text + "}\n");
        QCOMPARE(result.error, QString());
        QSet<QByteArray> names;
        for (const osg::NodePtr& each : SceneOutline::nodes(result.root))
            names.insert(SceneOutline::nameOf(each));
        QCOMPARE(names.size(), count + 1);
        QVERIFY(names.contains("Arm") && names.contains("Arm_100000"));
        QCOMPARE(result.statistics.renamed, count - 1);
    }
};

QTEST_APPLESS_MAIN(tst_unusual_names)
#include "tst_unusual_names.moc"
