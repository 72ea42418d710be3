// SPDX-License-Identifier: MIT
#include "SampleModel.h"
#include "host/models/TD_SceneGraphUtil.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <QRegularExpression>
#include <QTest>

class tst_TD_SceneGraphUtil : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void nothing_is_no_subnode()
    {
        QVERIFY(!TD_SceneGraphUtil::isKeySubnode(osg::NullFC));
        QVERIFY(!TD_SceneGraphUtil::isKeyGeometrySubnode(osg::NullFC));
        const osg::NodeRefPtr bare(osg::Node::create());
        QVERIFY(!TD_SceneGraphUtil::isKeySubnode(bare));
        QVERIFY(!TD_SceneGraphUtil::isKeyGeometrySubnode(bare));
    }

    void only_key_transforms_make_subnodes()
    {
        const osg::NodeRefPtr key(addNode<osg::KeyTransform>(osg::NullFC, "n"));
        const osg::NodeRefPtr transform(addNode<osg::Transform>(osg::NullFC, "n"));
        const osg::NodeRefPtr group(addNode<osg::Group>(osg::NullFC, "n"));
        const osg::NodeRefPtr shape(addNode<osg::Geometry>(osg::NullFC, "n"));
        QVERIFY(TD_SceneGraphUtil::isKeySubnode(key));
        QVERIFY(!TD_SceneGraphUtil::isKeySubnode(transform));
        QVERIFY(!TD_SceneGraphUtil::isKeySubnode(group));
        QVERIFY(!TD_SceneGraphUtil::isKeySubnode(shape));
    }

    void a_subnode_needs_no_name()
    {
        const osg::NodeRefPtr key(osg::makeCoredNode<osg::KeyTransform>());
        QVERIFY(TD_SceneGraphUtil::isKeySubnode(key));
    }

    void owns_the_shape_right_below_it()
    {
        const osg::NodeRefPtr key(addNode<osg::KeyTransform>(osg::NullFC, "key"));
        QVERIFY(!TD_SceneGraphUtil::isKeyGeometrySubnode(key));
        addNode<osg::Group>(key, "empty");
        QVERIFY(!TD_SceneGraphUtil::isKeyGeometrySubnode(key));
        addNode<osg::Geometry>(key, "shape");
        QVERIFY(TD_SceneGraphUtil::isKeyGeometrySubnode(key));
    }

    void owns_a_shape_below_nodes_that_are_no_subnodes()
    {
        const osg::NodeRefPtr key(addNode<osg::KeyTransform>(osg::NullFC, "key"));
        const osg::NodePtr bare = osg::Node::create();
        addNode<osg::Group>(key, "group")->addChild(bare);
        addNode<osg::Geometry>(addNode<osg::Transform>(bare, "transform"), "shape");
        QVERIFY(TD_SceneGraphUtil::isKeyGeometrySubnode(key));
    }

    void does_not_own_the_shape_of_a_subnode_below_it()
    {
        const osg::NodeRefPtr outer(addNode<osg::KeyTransform>(osg::NullFC, "outer"));
        const osg::NodePtr inner =
            addNode<osg::KeyTransform>(addNode<osg::Group>(outer, "group"), "inner");
        addNode<osg::Geometry>(inner, "shape");
        QVERIFY(!TD_SceneGraphUtil::isKeyGeometrySubnode(outer));
        QVERIFY(TD_SceneGraphUtil::isKeyGeometrySubnode(inner));
        addNode<osg::Geometry>(outer, "last");
        QVERIFY(TD_SceneGraphUtil::isKeyGeometrySubnode(outer));
    }

    void owns_nothing_above_or_beside_it()
    {
        const osg::NodeRefPtr root(addNode<osg::Geometry>(osg::NullFC, "root"));
        const osg::NodePtr key = addNode<osg::KeyTransform>(root, "key");
        addNode<osg::Geometry>(root, "beside");
        QVERIFY(!TD_SceneGraphUtil::isKeyGeometrySubnode(key));
    }

    void a_node_with_a_shape_is_no_subnode()
    {
        const osg::NodeRefPtr group(addNode<osg::Group>(osg::NullFC, "group"));
        addNode<osg::Geometry>(group, "shape");
        QVERIFY(!TD_SceneGraphUtil::isKeyGeometrySubnode(group));
    }

    void finds_a_shape_deeper_than_the_stack()
    {
        const osg::NodeRefPtr key(addNode<osg::KeyTransform>(osg::NullFC, "key"));
        osg::NodePtr last = key;
        for (int i = 0; i < 20000; ++i)
            last = addNode<osg::Group>(last, "link");
        QVERIFY(!TD_SceneGraphUtil::isKeyGeometrySubnode(key));
        addNode<osg::Geometry>(last, "shape");
        QVERIFY(TD_SceneGraphUtil::isKeyGeometrySubnode(key));
    }
};

QTEST_GUILESS_MAIN(tst_TD_SceneGraphUtil)
#include "tst_TD_SceneGraphUtil.moc"
