// SPDX-License-Identifier: MIT

#include "workbench/batch/SubnodeDump.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QTest>
#include <QTextStream>

class tst_subnode_dump : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void key_nodes_hang_below_the_next_key_node_above();
    void every_node_is_written_with_its_type();
    void a_node_without_a_name_or_a_core_is_still_a_line();
    void a_name_never_breaks_its_line();
    void names_are_not_taken_for_ascii();
    void a_null_root_leaves_the_title_alone();
    void depth_costs_no_stack();

private:
    template <class Core>
    static osg::NodePtr node(const char* name, const std::vector<osg::NodePtr>& children = {})
    {
        const osg::NodePtr made = osg::makeCoredNode<Core>();
        osg::setName(made, name);
        for (const osg::NodePtr& child : children)
            made->addChild(child);
        return made;
    }
    static QString dumped(const osg::NodePtr& root, bool everyNode)
    {
        const osg::NodeRefPtr kept(root);
        QString text;
        QTextStream stream(&text);
        SubnodeDump(stream, everyNode).write(QStringLiteral("model"), root);
        return text;
    }
};

void tst_subnode_dump::initTestCase()
{
    osg::osgInit(0, nullptr);
}

void tst_subnode_dump::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void tst_subnode_dump::key_nodes_hang_below_the_next_key_node_above()
{
    const osg::NodePtr root = node<osg::Group>(
        "scene",
        {node<osg::KeyTransform>(
             "arm", {node<osg::Group>("joint", {node<osg::KeyTransform>(
                                                   "hand", {node<osg::Geometry>("shape")})})}),
         node<osg::KeyTransform>("leg")});
    QCOMPARE(dumped(root, false), QStringLiteral("model\n  arm\n    hand\n  leg\n"));
}

void tst_subnode_dump::every_node_is_written_with_its_type()
{
    const osg::NodePtr root =
        node<osg::Group>("scene", {node<osg::KeyTransform>("arm", {node<osg::Geometry>("shape")}),
                                   node<osg::Transform>("pivot")});
    QCOMPARE(dumped(root, true), QStringLiteral("model\n  scene [Group]\n    arm [KeyTransform]\n"
                                                "      shape [Geometry]\n    pivot [Transform]\n"));
}

void tst_subnode_dump::a_node_without_a_name_or_a_core_is_still_a_line()
{
    const osg::NodePtr root = node<osg::Group>("scene", {node<osg::KeyTransform>(nullptr)});
    root->addChild(osg::Node::create());
    QCOMPARE(dumped(root, true),
             QStringLiteral("model\n  scene [Group]\n    (no name) [KeyTransform]\n"
                            "    (no name) [no core]\n"));
}

void tst_subnode_dump::a_name_never_breaks_its_line()
{
    QCOMPARE(dumped(node<osg::KeyTransform>("a\nb\tc"), false),
             QStringLiteral("model\n  a\\x0ab\\x09c\n"));
}

void tst_subnode_dump::names_are_not_taken_for_ascii()
{
    QCOMPARE(dumped(node<osg::KeyTransform>("bras_d\xc3\xa9pli\xc3\xa9"), false),
             QStringLiteral("model\n  bras_d\u00e9pli\u00e9\n"));
}

void tst_subnode_dump::a_null_root_leaves_the_title_alone()
{
    QCOMPARE(dumped(osg::NullFC, true), QStringLiteral("model\n"));
}

void tst_subnode_dump::depth_costs_no_stack()
{
    constexpr int depth = 20000;
    osg::NodePtr root = node<osg::KeyTransform>("deepest");
    for (int i = 1; i < depth; ++i)
        root = node<osg::Group>("g", {root});
    QCOMPARE(dumped(root, false), QStringLiteral("model\n  deepest\n"));
}

QTEST_APPLESS_MAIN(tst_subnode_dump)
#include "tst_subnode_dump.moc"
