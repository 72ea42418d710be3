// SPDX-License-Identifier: MIT
#include "ImportTesting.h"
#include "SceneOutline.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QTest>

namespace {

constexpr int levels = 20000;

QByteArray deepGltf()
{
    QByteArrayList nodes;
    for (int i = 0; i < levels; ++i) {
        const QByteArray children =
            i + 1 < levels ? ",\"children\":[" + QByteArray::number(i + 1) + "]" : "";
        nodes += "{\"name\":\"N" + QByteArray::number(i) + "\"" + children + "}";
    }
    return gltf(nodes);
}

QByteArray deepCollada()
{
    QByteArray text = R"(<?xml version="1.0"?><COLLADA version="1.4.1" )"
                      R"(xmlns="http://www.collada.org/2005/11/COLLADASchema">)"
                      R"(<library_visual_scenes><visual_scene id="s" name="N0">)";
    for (int i = 1; i < levels; ++i)
        text +=
            "<node id=\"n" + QByteArray::number(i) + "\" name=\"N" + QByteArray::number(i) + "\">";
    for (int i = 1; i < levels; ++i)
        text += "</node>";
    return text + R"(</visual_scene></library_visual_scenes>)"
                  R"(<scene><instance_visual_scene url="#s"/></scene></COLLADA>)";
}

QByteArray deepX()
{
    QByteArray text = "xof 0303txt 0032\n";
    for (int i = 0; i < levels; ++i)
        text += "Frame N" + QByteArray::number(i) + " {\n";
    return text + QByteArray(levels, '}') + "\n";
}

} // namespace

class tst_deep_hierarchies : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void every_level_is_imported_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("gltf") << "deep.gltf" << deepGltf();
        QTest::newRow("collada") << "deep.dae" << deepCollada();
        QTest::newRow("x") << "deep.x" << deepX();
    }
    void every_level_is_imported()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, content);
        const ImportFolder folder;
        const ImportResult result = folder.import(name, content);
        QCOMPARE(result.error, QString());
        int level = 0;
        for (osg::NodePtr node = result.root;; node = node->getChild(0)) {
            QCOMPARE(SceneOutline::nameOf(node), "N" + QByteArray::number(level));
            ++level;
            if (node->getNChildren() == 0)
                break;
        }
        QCOMPARE(level, levels);
    }
};

QTEST_APPLESS_MAIN(tst_deep_hierarchies)
#include "tst_deep_hierarchies.moc"
