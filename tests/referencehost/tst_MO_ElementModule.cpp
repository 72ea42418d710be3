// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "SampleModel.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/TUSceneChangeManager.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <QRegularExpression>
#include <QTest>

namespace {

/// The keys of the element by their ids.
QStringList keysOf(const MO_ElementModule& element)
{
    QStringList names;
    AT_ModelNodeKey key;
    for (int id = 1; element.getNodeKeyForSelId(id, key); ++id)
        names << key.name();
    return names;
}

} // namespace

class tst_MO_ElementModule : public QObject
{
    Q_OBJECT

private:
    MO_ElementModule _element{QStringLiteral("Element")};

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void is_editable_until_it_is_locked()
    {
        MO_ElementModule element{QString()};
        QVERIFY(element.isEditable());
        element.setEditable(false);
        QVERIFY(!element.isEditable());
        QCOMPARE(element.typeName(), QStringLiteral("ELEMENT"));
    }

    void notes_when_it_is_locked_or_unlocked()
    {
        TUSceneChangeManager changes;
        TUScene scene(QStringLiteral("Scene"), &changes);
        auto* element = static_cast<MO_ElementModule*>(
            scene.rootGroup()->insertNode(std::make_unique<MO_ElementModule>("Element")));
        changes.notify();
        ChangeLog log(changes);
        element->setEditable(true);
        changes.notify();
        QVERIFY(log.told().isEmpty());
        element->setEditable(false);
        changes.notify();
        QCOMPARE(log.take(), QStringList{"nodes Element"});
    }

    void numbers_key_nodes_from_one_each_before_what_is_below()
    {
        MO_ElementModule element{QString()};
        const osg::NodePtr root = addNode<osg::KeyTransform>(osg::NullFC, "root");
        const osg::NodePtr arm = addNode<osg::KeyTransform>(root, "arm");
        addNode<osg::KeyTransform>(arm, "hand");
        addNode<osg::KeyTransform>(root, "leg");
        element.exposeModel(1, 10, std::make_shared<TD_CelVq3d>(root));
        QCOMPARE(keysOf(element), (QStringList{"root", "arm", "hand", "leg"}));

        int id = 0;
        QVERIFY(element.getSelIdForNodeKey(AT_ModelNodeKey("hand"), id));
        QCOMPARE(id, 3);
    }

    void gives_ids_to_named_key_nodes_alone()
    {
        MO_ElementModule element{QString()};
        const osg::NodePtr root = addNode<osg::Group>(osg::NullFC, "group");
        addNode<osg::Transform>(root, "transform");
        addNode<osg::Geometry>(root, "geometry");
        addNode<osg::KeyTransform>(root, "");
        addNode<osg::KeyTransform>(root, nullptr);
        root->addChild(osg::Node::create());
        addNode<osg::KeyTransform>(root, "key");
        element.exposeModel(1, 1, std::make_shared<TD_CelVq3d>(root));
        QCOMPARE(keysOf(element), QStringList{"key"});
    }

    void gives_one_id_to_nodes_of_the_same_name()
    {
        MO_ElementModule element{QString()};
        element.exposeModel(1, 1, modelOf({"a", "b", "a"}));
        QCOMPARE(keysOf(element), (QStringList{"a", "b"}));
    }

    void keeps_ids_when_other_models_come_and_go()
    {
        MO_ElementModule element{QString()};
        element.exposeModel(1, 5, modelOf({"a", "b"}));
        element.exposeModel(1, 10, modelOf({"c", "b"}));
        element.exposeModel(1, 10, nullptr);
        element.exposeModel(1, 10, modelOf({"d", "a"}));
        QCOMPARE(keysOf(element), (QStringList{"a", "b", "c", "d"}));
    }

    void leaves_results_untouched_for_unknown_keys_and_ids()
    {
        MO_ElementModule element{QString()};
        element.exposeModel(1, 1, modelOf({"a"}));
        int id = 42;
        QVERIFY(!element.getSelIdForNodeKey(AT_ModelNodeKey("unknown"), id));
        QVERIFY(!element.getSelIdForNodeKey(AT_ModelNodeKey(), id));
        QCOMPARE(id, 42);
        AT_ModelNodeKey key("mine");
        for (const int unknown : {0, -1, 2, std::numeric_limits<int>::min()})
            QVERIFY(!element.getNodeKeyForSelId(unknown, key));
        QCOMPARE(key.name(), QStringLiteral("mine"));
    }

    void accepts_an_empty_model()
    {
        MO_ElementModule element{QString()};
        const auto empty = std::make_shared<TD_CelVq3d>(osg::NullFC);
        element.exposeModel(1, 1, empty);
        QCOMPARE(element.modelAt(1.0), empty);
        QVERIFY(keysOf(element).isEmpty());
    }

    void reads_models_deeper_than_the_stack()
    {
        constexpr int depth = 20000;
        MO_ElementModule element{QString()};
        const osg::NodePtr root = addNode<osg::KeyTransform>(osg::NullFC, "0");
        osg::NodePtr node = root;
        for (int i = 1; i < depth; ++i)
            node = addNode<osg::KeyTransform>(node, QByteArray::number(i).constData());
        element.exposeModel(1, 1, std::make_shared<TD_CelVq3d>(root));
        int id = 0;
        QVERIFY(element.getSelIdForNodeKey(AT_ModelNodeKey(QString::number(depth - 1)), id));
        QCOMPARE(id, depth);
    }
};

QTEST_GUILESS_MAIN(tst_MO_ElementModule)
#include "tst_MO_ElementModule.moc"
