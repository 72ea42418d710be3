// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_NodeName.h"
#include "subnodetree/SGV_GraphModel.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/subnodetree/RowsOf.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

/// A core of a type that does not come from the library and stands for a key node as well.
class Joint : public osg::KeyTransform
{
public:
    static osg::FieldContainerType& getClassType() { return type; }
    osg::FieldContainerType& getType() override { return type; }
    const osg::FieldContainerType& getType() const override { return type; }

private:
    static inline osg::FieldContainerType type{"Joint", "KeyTransform"};
};

/// The rows of a scene graph by plain recursion, in the form of RowsOf::text().
QStringList plainRows(const osg::NodePtr& node, bool debugMode)
{
    QStringList below;
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        below << plainRows(node->getChild(i), debugMode);
    if (!debugMode && osg::KeyTransformPtr::dcast(node->getCore()) == osg::NullFC)
        return below;
    const QString name = TD_nodeName(node);
    return {below.isEmpty() ? name : name + u'(' + below.join(u' ') + u')'};
}

QString treeOf(const CEL_SharedPtr<TD_CelVq3d>& shown, bool debugMode = false)
{
    SGV_GraphModel model;
    model.setDebugMode(debugMode);
    model.setRootNode(shown->rootNodePtr());
    return RowsOf::text(model);
}

CEL_SharedPtr<TD_CelVq3d> robot()
{
    return model(group("scene", {key("arm", {key("hand", {geometry("skin")}), key("pin")}),
                                 transform("base", {geometry("plate"), key("foot")})}));
}

} // namespace

class tst_SGV_GraphModel : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void new_model_is_empty()
    {
        const SGV_GraphModel model;
        QVERIFY(model.isEmpty());
        QVERIFY(!model.debugMode());
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.index(0, 0).isValid());
        QVERIFY(model.showsRootNode(osg::NodePtr()));
        QVERIFY(model.items().empty());
    }

    void key_nodes_alone_have_rows()
    {
        QCOMPARE(treeOf(robot()), QStringLiteral("arm(hand pin) foot"));
    }

    void every_node_has_a_row_in_debug_mode()
    {
        QCOMPARE(treeOf(robot(), true),
                 QStringLiteral("scene(arm(hand(skin) pin) base(plate foot))"));
    }

    void key_node_below_other_nodes_hangs_under_the_nearest_key_node()
    {
        const auto shown = model(key(
            "a", {group("g", {transform("t", {key("b"), coreless("n", {key("c")})})}), key("d")}));
        QCOMPARE(treeOf(shown), QStringLiteral("a(b c d)"));
    }

    void graph_without_key_nodes_has_no_rows()
    {
        SGV_GraphModel model;
        const auto shown = ModelBuilder::model(group("g", {transform("t", {geometry("s")})}));
        model.setRootNode(shown->rootNodePtr());
        QVERIFY(model.isEmpty());
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(model.showsRootNode(shown->rootNodePtr()));
    }

    void node_without_core_has_a_row_in_debug_mode_alone()
    {
        QCOMPARE(treeOf(model(coreless("bare", {key("arm")}))), QStringLiteral("arm"));
        QCOMPARE(treeOf(model(coreless("bare", {key("arm")})), true), QStringLiteral("bare(arm)"));
    }

    void core_derived_from_a_key_transform_has_a_row()
    {
        const osg::NodePtr root = build(group("g"));
        const osg::NodePtr joint = osg::makeNodeFor(osg::KeyTransformPtr(new Joint));
        osg::setName(joint, "joint");
        root->addChild(joint);
        const auto shown = model(root);
        QCOMPARE(treeOf(shown), QStringLiteral("joint"));
        SGV_GraphModel model;
        model.setRootNode(root);
        QCOMPARE(int(model.flags(model.index(0, 0))), 33);
    }

    void null_node_leaves_no_rows()
    {
        const auto shown = robot();
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        QVERIFY(!model.isEmpty());
        model.setRootNode(osg::NodePtr());
        QVERIFY(model.isEmpty());
        QVERIFY(model.showsRootNode(osg::NodePtr()));
        QVERIFY(!model.showsRootNode(shown->rootNodePtr()));
    }

    void debug_mode_waits_for_the_next_rebuild_and_stays()
    {
        const auto shown = robot();
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        model.setDebugMode(true);
        QCOMPARE(RowsOf::text(model), QStringLiteral("arm(hand pin) foot"));
        for (int i = 0; i < 2; ++i) {
            model.setRootNode(shown->rootNodePtr());
            QVERIFY(RowsOf::text(model).startsWith(QStringLiteral("scene(arm")));
            QVERIFY(model.debugMode());
        }
        model.clear();
        QVERIFY(model.debugMode());
        model.setDebugMode(false);
        model.setRootNode(shown->rootNodePtr());
        QCOMPARE(RowsOf::text(model), QStringLiteral("arm(hand pin) foot"));
    }

    void any_graph_gives_the_rows_of_the_plain_rule()
    {
        for (quint32 seed = 0; seed < 40; ++seed) {
            const auto shown = randomModel(seed, 1 + int(seed) * 7);
            for (const bool debugMode : {false, true}) {
                QCOMPARE(treeOf(shown, debugMode),
                         plainRows(shown->rootNodePtr(), debugMode).join(u' '));
            }
        }
    }

    void index_and_parent_agree()
    {
        const auto shown = randomModel(3, 300);
        SGV_GraphModel model;
        model.setDebugMode(true);
        model.setRootNode(shown->rootNodePtr());
        QCOMPARE(RowsOf::preOrder(model).size(), model.items().size());
        for (const QModelIndex& index : RowsOf::preOrder(model)) {
            QCOMPARE(index.column(), 0);
            QCOMPARE(model.index(index.row(), 0, index.parent()), index);
            for (int row = 0; row < model.rowCount(index); ++row)
                QCOMPARE(model.index(row, 0, index).parent(), index);
        }
    }

    void there_is_no_index_outside_the_rows()
    {
        const auto shown = robot();
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        const QModelIndex arm = model.index(0, 0);
        for (const auto& [row, column] :
             {std::pair(-1, 0), {2, 0}, {0, 1}, {0, -1}, {1, 1}, {-1, -1}}) {
            QVERIFY(!model.index(row, column).isValid());
            QVERIFY(!model.index(row, column, arm).isValid());
        }
        QVERIFY(model.index(1, 0, arm).isValid());
        QVERIFY(!model.index(0, 0, model.index(1, 0, arm)).isValid());
    }

    void top_rows_and_the_invalid_index_have_no_parent()
    {
        const auto shown = robot();
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        QVERIFY(!model.parent(QModelIndex()).isValid());
        QVERIFY(!model.parent(model.index(0, 0)).isValid());
        QVERIFY(!model.parent(model.index(1, 0)).isValid());
    }

    void parent_is_in_column_0_and_in_its_own_row()
    {
        const auto shown = model(key("a", {key("b"), key("c", {key("d")})}));
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        const QModelIndex c = model.index(1, 0, model.index(0, 0));
        const QModelIndex parent = model.parent(model.index(0, 0, c));
        QCOMPARE(parent, c);
        QCOMPARE(parent.row(), 1);
        QCOMPARE(parent.column(), 0);
    }

    void rows_are_below_the_first_column_alone()
    {
        // No index has another column, except one that a stranger makes.
        struct OpenModel : SGV_GraphModel
        {
            using SGV_GraphModel::createIndex;
        };
        const auto shown = robot();
        OpenModel model;
        model.setRootNode(shown->rootNodePtr());
        const QModelIndex arm = model.index(0, 0);
        QCOMPARE(model.rowCount(arm), 2);
        QCOMPARE(model.rowCount(model.createIndex(0, 1, arm.internalPointer())), 0);
        QCOMPARE(model.rowCount(model.createIndex(0, 5, arm.internalPointer())), 0);
    }

    void there_is_always_one_column()
    {
        const auto shown = robot();
        SGV_GraphModel model;
        QCOMPARE(model.columnCount(), 1);
        model.setRootNode(shown->rootNodePtr());
        QCOMPARE(model.columnCount(), 1);
        for (const QModelIndex& index : RowsOf::preOrder(model))
            QCOMPARE(model.columnCount(index), 1);
    }

    void model_knows_the_root_it_shows()
    {
        const auto shown = robot();
        const auto other = robot();
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        QVERIFY(model.showsRootNode(shown->rootNodePtr()));
        QVERIFY(!model.showsRootNode(other->rootNodePtr()));
        QVERIFY(!model.showsRootNode(shown->rootNodePtr()->getChild(0)));
        QVERIFY(!model.showsRootNode(osg::NodePtr()));
        model.clear();
        QVERIFY(!model.showsRootNode(shown->rootNodePtr()));
        QVERIFY(model.showsRootNode(osg::NodePtr()));
    }

    void shown_root_lives_on_so_that_no_new_one_takes_its_place()
    {
        SGV_GraphModel model;
        {
            const auto gone = ModelBuilder::model(key("gone"));
            model.setRootNode(gone->rootNodePtr());
        }
        for (int i = 0; i < 200; ++i) {
            const auto next = ModelBuilder::model(key("next"));
            QVERIFY(!model.showsRootNode(next->rootNodePtr()));
        }
        QCOMPARE(RowsOf::text(model), QStringLiteral("gone"));
    }

    void root_that_nobody_else_holds_can_be_shown_again()
    {
        SGV_GraphModel model;
        osg::NodePtr root = build(key("arm", {key("hand")}));
        model.setRootNode(root);
        model.setRootNode(root);
        QVERIFY(model.showsRootNode(root));
        QCOMPARE(RowsOf::text(model), QStringLiteral("arm(hand)"));
    }
};

QTEST_MAIN(tst_SGV_GraphModel)
#include "tst_SGV_GraphModel.moc"
