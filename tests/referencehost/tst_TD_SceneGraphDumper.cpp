// SPDX-License-Identifier: MIT
#include "SampleModel.h"
#include "host/models/TD_SceneGraphDumper.h"
#include "referencehost/services/Diagnostics.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <QRegularExpression>
#include <QTest>
#include <algorithm>

class tst_TD_SceneGraphDumper : public QObject
{
    Q_OBJECT

private:
    static void moveBy(const osg::NodePtr& node, float x, float y, float z)
    {
        osg::Matrix matrix;
        matrix.setTranslate(x, y, z);
        osg::TransformPtr::dcast(node->getCore())->setMatrix(matrix);
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void writes_a_line_for_each_node()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "Scene"));
        const osg::NodePtr arm = addNode<osg::KeyTransform>(root, "Arm");
        addNode<osg::Geometry>(addNode<osg::KeyTransform>(arm, "Hand"), "Hand shape");
        arm->addChild(osg::makeCoredNode<osg::Geometry>());
        addNode<osg::Transform>(root, "");
        root->addChild(osg::Node::create());
        QCOMPARE(TD_SceneGraphDumper::text(root), QStringLiteral("Scene (Group) 3\n"
                                                                 "  Arm (KeyTransform) * 2\n"
                                                                 "    Hand (KeyTransform) * 1\n"
                                                                 "      Hand shape (Geometry) 0\n"
                                                                 "    - (Geometry) 0\n"
                                                                 "  - (Transform) 0\n"
                                                                 "  - (no core) 0\n"));
    }

    void writes_matrices_by_rows()
    {
        const osg::NodeRefPtr root(addNode<osg::Transform>(osg::NullFC, "Placed"));
        moveBy(root, 1.0f, -2.5f, 3.0f);
        const osg::NodePtr key = addNode<osg::KeyTransform>(root, "Arm");
        osg::Matrix matrix;
        for (osg::UInt32 column = 0; column < 4; ++column) {
            for (osg::UInt32 row = 0; row < 4; ++row)
                matrix[column][row] = static_cast<float>(10 * row + column);
        }
        osg::TransformPtr::dcast(key->getCore())->setMatrix(matrix);
        QCOMPARE(
            TD_SceneGraphDumper::text(root),
            QStringLiteral(
                "Placed (Transform) 1 [1 0 0 1; 0 1 0 -2.5; 0 0 1 3; 0 0 0 1]\n"
                "  Arm (KeyTransform) * 0 [0 1 2 3; 10 11 12 13; 20 21 22 23; 30 31 32 33]\n"));
    }

    void begins_at_the_given_node()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "Scene"));
        const osg::NodePtr arm = addNode<osg::KeyTransform>(root, "Arm");
        addNode<osg::KeyTransform>(root, "Leg");
        QCOMPARE(TD_SceneGraphDumper::text(arm), QStringLiteral("Arm (KeyTransform) * 0\n"));
    }

    void writes_names_in_any_script()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "B\xc3\xa4r \xe7\x86\x8a"));
        QCOMPARE(TD_SceneGraphDumper::text(root), QStringLiteral("B\u00e4r \u718a (Group) 0\n"));
    }

    void says_that_there_is_nothing_for_null()
    {
        QCOMPARE(TD_SceneGraphDumper::text(osg::NullFC),
                 QStringLiteral("There is no scene graph.\n"));
    }

    void dumps_its_text_where_diagnostics_go()
    {
        const osg::NodeRefPtr root(addNode<osg::Group>(osg::NullFC, "Scene"));
        addNode<osg::KeyTransform>(root, "Arm");
        QStringList outer, inner;
        Diagnostics::Sink before =
            Diagnostics::setSink([&outer](const QString& text) { outer << text; });
        QVERIFY(!before);
        TD_SceneGraphDumper().dump(root);
        QCOMPARE(outer.takeLast(), TD_SceneGraphDumper::text(root));
        QVERIFY(outer.isEmpty());

        Diagnostics::Sink first =
            Diagnostics::setSink([&inner](const QString& text) { inner << text; });
        TD_SceneGraphDumper().dump(osg::NullFC);
        QCOMPARE(inner, QStringList{TD_SceneGraphDumper::text(osg::NullFC)});
        QVERIFY(outer.isEmpty());

        QVERIFY(Diagnostics::setSink(first));
        Diagnostics::write(QStringLiteral("again"));
        QCOMPARE(outer, QStringList{"again"});
        QCOMPARE(inner.size(), 1);

        QVERIFY(Diagnostics::setSink(before));
        QVERIFY(!Diagnostics::setSink({}));
    }

    void goes_as_deep_as_a_model_does()
    {
        // Each line is longer than the one before, so the text grows with the square of the depth.
        constexpr int depth = 2000;
        std::vector<osg::NodeRefPtr> chain{
            osg::NodeRefPtr(addNode<osg::Group>(osg::NullFC, "link"))};
        while (static_cast<int>(chain.size()) < depth)
            chain.emplace_back(addNode<osg::Group>(chain.back(), "link"));
        const QStringList lines = TD_SceneGraphDumper::text(chain.front()).split(u'\n');
        QCOMPARE(lines.size(), depth + 1);
        QVERIFY(lines.last().isEmpty());
        for (int i = 0; i < depth; ++i) {
            QCOMPARE(lines[i].size() - lines[i].trimmed().size(), 2 * std::min(i, 100));
            QVERIFY(lines[i].endsWith(i == depth - 1 ? QStringLiteral("link (Group) 0")
                                                     : QStringLiteral("link (Group) 1")));
        }
        for (osg::NodeRefPtr& node : chain)
            node = osg::NodePtr();
    }
};

QTEST_GUILESS_MAIN(tst_TD_SceneGraphDumper)
#include "tst_TD_SceneGraphDumper.moc"
