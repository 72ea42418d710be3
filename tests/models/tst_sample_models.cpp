// SPDX-License-Identifier: MIT
#include "workbench/import/ModelImporter.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QFontMetrics>
#include <QTest>
#include <algorithm>
#include <cmath>

class tst_sample_models : public QObject
{
    Q_OBJECT

private:
    ImportResult _robot;
    ImportResult _crane;

    static QList<osg::NodePtr> nodes(const ImportResult& model)
    {
        QList<osg::NodePtr> all{model.root};
        for (qsizetype i = 0; i < all.size(); ++i) {
            const osg::NodePtr node = all[i];
            for (osg::UInt32 child = 0; child < node->getNChildren(); ++child)
                all += node->getChild(child);
        }
        return all;
    }
    static bool isKey(const osg::NodePtr& node)
    {
        return node->getCore()->getType().isDerivedFrom(osg::KeyTransform::getClassType());
    }
    static osg::NodePtr find(const ImportResult& model, const QByteArray& name)
    {
        for (const osg::NodePtr& node : nodes(model)) {
            if (osg::getName(node) == name)
                return node;
        }
        return osg::NullFC;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _robot = ModelImporter::importModel(SAMPLE_MODELS "/robot.gltf");
        _crane = ModelImporter::importModel(SAMPLE_MODELS "/crane.gltf");
        QCOMPARE(_robot.error, QString());
        QCOMPARE(_crane.error, QString());
    }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }
    void cleanupTestCase()
    {
        _robot = ImportResult();
        _crane = ImportResult();
    }

    void the_robot_has_some_forty_parts_and_groups_between_them()
    {
        QCOMPARE(_robot.statistics.keyTransforms, 41);
        QCOMPARE(_robot.statistics.transforms, 0);
        QCOMPARE(_robot.statistics.renamed, 0);
        for (const char* group : {"UpperBody", "LeftLeg", "LeftArm", "RightHandFingers", "Face"}) {
            const osg::NodePtr node = find(_robot, group);
            QVERIFY2(node != osg::NullFC, group);
            QVERIFY2(!isKey(node) && isKey(node->getChild(0)), group);
        }
    }

    void some_names_are_too_long_for_a_label()
    {
        QFont font("Courier", 10);
        font.setStyleHint(QFont::TypeWriter);
        const QFontMetrics metrics(font);
        int longNames = 0;
        for (const osg::NodePtr& node : nodes(_robot))
            longNames += isKey(node) && metrics.horizontalAdvance(osg::getName(node)) > 124;
        QVERIFY(longNames >= 3);
    }

    void what_is_animated_is_a_key()
    {
        QVERIFY(isKey(find(_crane, "LeftWingDrive")));
        QVERIFY(isKey(find(_crane, "RightWingDrive")));
        QVERIFY(!isKey(find(_crane, "Beak")));
        QVERIFY(_crane.statistics.keyTransforms > 20);
    }

    void faces_look_outwards()
    {
        QList<osg::NodePtr> all = nodes(_robot);
        all += nodes(_crane);
        int checked = 0;
        for (const osg::NodePtr& node : all) {
            const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
            if (geometry == osg::NullFC)
                continue;
            const osg::GeoPositionsPtr positions = geometry->getPositions();
            const osg::GeoIndicesPtr indices = geometry->getIndices();
            osg::Vec3f sum(0, 0, 0);
            for (osg::UInt32 i = 0; i < positions->getSize(); ++i)
                sum = sum + (positions->getValue(i) - osg::Pnt3f(0, 0, 0));
            const osg::Pnt3f center =
                osg::Pnt3f(0, 0, 0) + sum * (1.0F / static_cast<float>(positions->getSize()));
            for (osg::UInt32 i = 0; i + 2 < indices->getSize(); i += 3) {
                const osg::Pnt3f a = positions->getValue(indices->getValue(i));
                const osg::Pnt3f b = positions->getValue(indices->getValue(i + 1));
                const osg::Pnt3f c = positions->getValue(indices->getValue(i + 2));
                const osg::Vec3f normal = geometry->getNormals()->getValue(indices->getValue(i));
                QVERIFY(std::abs(normal.length() - 1.0F) < 1.0e-4F);
                QVERIFY(normal.dot(a - center) > 0);
                QVERIFY((b - a).cross(c - a).dot(normal) > 0);
                ++checked;
            }
        }
        QVERIFY(checked > 500);
    }
};

QTEST_MAIN(tst_sample_models)
#include "tst_sample_models.moc"
