// SPDX-License-Identifier: MIT

#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/workbench/SubnodeRecords.h"
#include "workbench/batch/NodeListing.h"

#include <OpenSG/OSGNodeCore.h>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;
using namespace SubnodeRecords;

namespace {

using Model = CEL_SharedPtr<TD_CelVq3d>;

/// A dot for each level below the first, and the name.
QString line(int depth, const QString& name)
{
    return QString(depth - 1, u'.') + name;
}

QStringList outline(const Model& model, const ListingOptions& options = {})
{
    QStringList lines;
    for (const ListedNode& node : listNodes(model->rootNodePtr(), options))
        lines += line(node.depth, node.name);
    return lines;
}

QStringList filteredOutline(const Model& model, const QString& filter, bool everyNode = false)
{
    ListingOptions options;
    options.filter = filter;
    options.everyNode = everyNode;
    return outline(model, options);
}

/// The same outline, said plainly and by recursion. Adds what the node and those below it make of
/// the listing, and tells whether that is anything.
bool addPlainOutline(const osg::NodePtr& node, const ListingOptions& options, int depth,
                     QStringList& lines)
{
    const bool isListed = options.everyNode || TD_SceneGraphUtil::isKeySubnode(node);
    const QString name = TD_nodeName(node);
    QStringList below;
    bool isKept = isListed && name.contains(options.filter, Qt::CaseInsensitive);
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        isKept |= addPlainOutline(node->getChild(i), options, isListed ? depth + 1 : depth, below);
    if (isListed && isKept)
        lines += line(depth, name);
    lines += below;
    return isKept;
}

} // namespace

class tst_node_listing : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void key_nodes_hang_below_the_next_key_node_above();
    void every_node_is_listed_with_its_type();
    void a_node_without_a_name_or_a_core_is_listed();
    void a_name_is_kept_as_it_is();
    void a_null_root_has_no_nodes();
    void depth_costs_no_stack();
    void without_settings_nothing_is_marked();
    void settings_are_those_of_key_nodes_alone();
    void what_is_off_says_nothing_of_what_hangs_below();
    void selected_subnodes_are_marked();
    void a_filter_keeps_what_leads_to_a_match();
    void a_filter_looks_at_no_case();
    void a_filter_that_nothing_matches_leaves_nothing();
    void a_filter_looks_at_key_nodes_alone_unless_every_node_is_listed();
    void a_filtered_node_keeps_its_marks();
    void is_what_a_plain_walk_finds_data();
    void is_what_a_plain_walk_finds();
};

void tst_node_listing::key_nodes_hang_below_the_next_key_node_above()
{
    const Model scene = model(group(
        "scene", {key("arm", {group("joint", {key("hand", {geometry("shape")})})}), key("leg")}));
    QCOMPARE(outline(scene), (QStringList{"arm", ".hand", "leg"}));
}

void tst_node_listing::every_node_is_listed_with_its_type()
{
    const Model scene =
        model(group("scene", {key("arm", {geometry("shape")}), transform("pivot", {key("leg")})}));
    ListingOptions options;
    options.everyNode = true;
    QCOMPARE(outline(scene, options), (QStringList{"scene", ".arm", "..shape", ".pivot", "..leg"}));
    QStringList types;
    QStringList keys;
    for (const ListedNode& node : listNodes(scene->rootNodePtr(), options)) {
        types += node.type;
        if (node.isKey)
            keys += node.name;
    }
    QCOMPARE(types,
             (QStringList{"Group", "KeyTransform", "Geometry", "Transform", "KeyTransform"}));
    QCOMPARE(keys, (QStringList{"arm", "leg"}));
}

void tst_node_listing::a_node_without_a_name_or_a_core_is_listed()
{
    const Model scene = model(key(noName, {coreless("bare", {key("")})}));
    ListingOptions options;
    options.everyNode = true;
    const std::vector<ListedNode> nodes = listNodes(scene->rootNodePtr(), options);
    QCOMPARE(nodes.size(), 3u);
    QCOMPARE(nodes.at(0).name, QString());
    QVERIFY(nodes.at(0).isKey);
    QCOMPARE(nodes.at(1).name, QStringLiteral("bare"));
    QCOMPARE(nodes.at(1).type, QString());
    QVERIFY(!nodes.at(1).isKey);
    QCOMPARE(nodes.at(2).name, QString());
    QCOMPARE(nodes.at(2).depth, 3);
    QCOMPARE(outline(scene), (QStringList{"", "."}));
}

void tst_node_listing::a_name_is_kept_as_it_is()
{
    QCOMPARE(outline(model(key("a\nb\t\"c\"\\"))), QStringList{"a\nb\t\"c\"\\"});
    QCOMPARE(outline(model(key("bras_d\xc3\xa9pli\xc3\xa9"))),
             QStringList{QStringLiteral("bras_d\u00e9pli\u00e9")});
}

void tst_node_listing::a_null_root_has_no_nodes()
{
    QVERIFY(listNodes(osg::NodePtr(), {}).empty());
    ListingOptions options;
    options.everyNode = true;
    options.filter = QStringLiteral("a");
    QVERIFY(listNodes(osg::NodePtr(), options).empty());
}

void tst_node_listing::depth_costs_no_stack()
{
    constexpr int depth = 20000;
    const Model deep = chain(depth);
    const std::vector<ListedNode> nodes = listNodes(deep->rootNodePtr(), {});
    QCOMPARE(static_cast<int>(nodes.size()), depth);
    QCOMPARE(nodes.back().depth, depth);
    ListingOptions options;
    options.filter = QStringLiteral("link%1").arg(depth - 1);
    QCOMPARE(static_cast<int>(listNodes(deep->rootNodePtr(), options).size()), depth);
    options.everyNode = true;
    options.filter.clear();
    QCOMPARE(listNodes(deep->rootNodePtr(), options).back().type, QStringLiteral("Geometry"));
}

void tst_node_listing::without_settings_nothing_is_marked()
{
    const Model scene = model(key("arm", {key("hand")}));
    for (const ListedNode& node : listNodes(scene->rootNodePtr(), {}))
        QVERIFY(!node.disabled && !node.shapeHidden && !node.hasProperties && !node.selected);
}

void tst_node_listing::settings_are_those_of_key_nodes_alone()
{
    AT_ModelData settings;
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("off")), off);
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("hidden")), hidden);
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("movable")), movable);
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("as modelled")), {});
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("shape")), off);
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("elsewhere")), off);
    const Model scene = model(group("scene", {key("off"), key("hidden"), key("movable"),
                                              key("as modelled"), key("none"), geometry("shape")}));
    ListingOptions options;
    options.everyNode = true;
    options.settings = &settings;
    options.selected = {QStringLiteral("shape")};
    QStringList marked;
    for (const ListedNode& node : listNodes(scene->rootNodePtr(), options)) {
        if (node.disabled)
            marked += node.name + QStringLiteral(": disabled");
        if (node.shapeHidden)
            marked += node.name + QStringLiteral(": shape hidden");
        if (node.hasProperties)
            marked += node.name + QStringLiteral(": properties");
        if (node.selected)
            marked += node.name + QStringLiteral(": selected");
    }
    QCOMPARE(marked, (QStringList{"off: disabled", "hidden: shape hidden", "movable: properties"}));
}

void tst_node_listing::what_is_off_says_nothing_of_what_hangs_below()
{
    AT_ModelData settings;
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("arm")), off);
    const Model scene = model(key("arm", {key("hand")}));
    ListingOptions options;
    options.settings = &settings;
    const std::vector<ListedNode> nodes = listNodes(scene->rootNodePtr(), options);
    QVERIFY(nodes.at(0).disabled);
    QVERIFY(!nodes.at(1).disabled);
}

void tst_node_listing::selected_subnodes_are_marked()
{
    const Model scene = model(key("body", {key("arm"), key("leg"), key("")}));
    ListingOptions options;
    options.selected = {QStringLiteral("leg"), QStringLiteral("elsewhere")};
    QStringList selected;
    for (const ListedNode& node : listNodes(scene->rootNodePtr(), options)) {
        if (node.selected)
            selected += node.name;
    }
    QCOMPARE(selected, QStringList{"leg"});
}

void tst_node_listing::a_filter_keeps_what_leads_to_a_match()
{
    const Model scene = model(key("body", {key("arm", {key("hand", {key("thumb")}), key("elbow")}),
                                           key("leg", {key("foot")}), key("handle")}));
    QCOMPARE(filteredOutline(scene, QStringLiteral("hand")),
             (QStringList{"body", ".arm", "..hand", ".handle"}));
    QCOMPARE(filteredOutline(scene, QStringLiteral("foot")),
             (QStringList{"body", ".leg", "..foot"}));
    QCOMPARE(filteredOutline(scene, QStringLiteral("body")), QStringList{"body"});
    QCOMPARE(filteredOutline(scene, QString()), outline(scene));
}

void tst_node_listing::a_filter_looks_at_no_case()
{
    const Model scene = model(
        group(noName, {key("Arm"), key("H\xc3\x89LICE"), key("a.b"), key("a*"), key("\xce\xa3")}));
    QCOMPARE(filteredOutline(scene, QStringLiteral("aRM")), QStringList{"Arm"});
    QCOMPARE(filteredOutline(scene, QStringLiteral("h\u00e9l")),
             QStringList{QStringLiteral("H\u00c9LICE")});
    QCOMPARE(filteredOutline(scene, QStringLiteral("\u03c3")),
             QStringList{QStringLiteral("\u03a3")});
    // A filter is text and no pattern.
    QCOMPARE(filteredOutline(scene, QStringLiteral(".")), QStringList{"a.b"});
    QCOMPARE(filteredOutline(scene, QStringLiteral("*")), QStringList{"a*"});
}

void tst_node_listing::a_filter_that_nothing_matches_leaves_nothing()
{
    QVERIFY(filteredOutline(model(key("body", {key("arm")})), QStringLiteral("wing")).isEmpty());
    QVERIFY(filteredOutline(emptyModel(), QStringLiteral("wing")).isEmpty());
}

void tst_node_listing::a_filter_looks_at_key_nodes_alone_unless_every_node_is_listed()
{
    const Model scene =
        model(group("scene", {key("arm", {geometry("skin")}), group("skin", {key("leg")})}));
    QVERIFY(filteredOutline(scene, QStringLiteral("skin")).isEmpty());
    QCOMPARE(filteredOutline(scene, QStringLiteral("skin"), true),
             (QStringList{"scene", ".arm", "..skin", ".skin"}));
}

void tst_node_listing::a_filtered_node_keeps_its_marks()
{
    AT_ModelData settings;
    settings.setNodeData(AT_ModelNodeKey(QStringLiteral("arm")), off);
    const Model scene = model(key("body", {key("leg"), key("arm", {key("hand")})}));
    ListingOptions options;
    options.settings = &settings;
    options.selected = {QStringLiteral("hand")};
    options.filter = QStringLiteral("hand");
    const std::vector<ListedNode> nodes = listNodes(scene->rootNodePtr(), options);
    QCOMPARE(nodes.size(), 3u);
    QVERIFY(!nodes.at(0).disabled);
    QVERIFY(nodes.at(1).disabled);
    QVERIFY(nodes.at(2).selected);
    QCOMPARE(nodes.at(2).depth, 3);
}

void tst_node_listing::is_what_a_plain_walk_finds_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<bool>("everyNode");
    for (const bool everyNode : {false, true}) {
        for (const QString& filter : {QString(), QStringLiteral("PART1"), QStringLiteral("7"),
                                      QStringLiteral("root"), QStringLiteral("wing")}) {
            QTest::addRow("%s of %s", qPrintable(filter), everyNode ? "all" : "subnodes")
                << filter << everyNode;
        }
    }
}

void tst_node_listing::is_what_a_plain_walk_finds()
{
    QFETCH(const QString, filter);
    QFETCH(const bool, everyNode);
    ListingOptions options;
    options.filter = filter;
    options.everyNode = everyNode;
    for (quint32 seed = 0; seed < 100; ++seed) {
        const Model random = randomModel(seed, 1 + static_cast<int>(seed));
        QStringList plain;
        addPlainOutline(random->rootNodePtr(), options, 1, plain);
        QCOMPARE(outline(random, options), plain);
    }
}

QTEST_APPLESS_MAIN(tst_node_listing)
#include "tst_node_listing.moc"
