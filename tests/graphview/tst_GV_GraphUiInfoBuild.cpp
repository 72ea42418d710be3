// SPDX-License-Identifier: MIT

#include "graphview/GV_UiSgNode.h"
#include "host/models/TD_CelVq3d.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

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

osg::NodePtr jointNode()
{
    return osg::makeNodeFor(osg::KeyTransformPtr(new Joint));
}

/// One box of a tree: what it stands for and how it is shown.
struct Box
{
    osg::NodePtr node;
    int column;
    bool editable;

    friend bool operator==(const Box& a, const Box& b)
    {
        return a.node == b.node && a.column == b.column && a.editable == b.editable;
    }
};
using Boxes = std::vector<Box>;

bool hasKeyCore(const osg::NodePtr& node)
{
    return osg::KeyTransformPtr::dcast(node->getCore()) != osg::NullFC;
}

/// The boxes that a scene graph should have below a header, by plain recursion.
void addBoxes(Boxes& boxes, const osg::NodePtr& node, int column, bool extended)
{
    if (!extended && node->getNChildren() == 0)
        return;
    const bool isKey = hasKeyCore(node);
    const bool shown = extended || isKey;
    if (shown)
        boxes.push_back({node, column, isKey});
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        addBoxes(boxes, node->getChild(i), shown ? column + 1 : column, extended);
}

Boxes boxesBelow(GV_UiNode* root)
{
    Boxes boxes;
    for (GV_UiNode* node : preOrder(root)) {
        if (const auto* part = dynamic_cast<GV_UiSgNode*>(node))
            boxes.push_back({part->sgNode(), part->column(), part->isEditable()});
    }
    return boxes;
}

QString treeOf(const CEL_SharedPtr<TD_CelVq3d>& model, bool extendedDisplay = false)
{
    ShownModels models;
    models.showOnly(QStringLiteral("Robot"), model, extendedDisplay);
    return models.tree();
}

} // namespace

class tst_GV_GraphUiInfoBuild : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void extendedTreeHoldsEveryNodeWithTheModelsRootOnTop()
    {
        const auto robot =
            model(group("scene", {key("arm", {geometry("skin")}), coreless("mark")}));
        QCOMPARE(treeOf(robot, true), QStringLiteral("Robot(scene(arm(skin) mark))"));
    }

    void filteredTreeHoldsKeyNodesAlone()
    {
        const auto robot = model(group("scene", {key("arm", {key("hand", {geometry("skin")})}),
                                                 transform("base", {geometry("plate")})}));
        QCOMPARE(treeOf(robot), QStringLiteral("Robot(arm(hand))"));
    }

    void filteredTreeMayStartWithTheModelsRoot()
    {
        QCOMPARE(treeOf(model(key("body", {geometry("skin")}))), QStringLiteral("Robot(body)"));
    }

    void keyNodeBelowAPlainGroupBelowAKeyNodeHangsUnderTheUpperOne()
    {
        const auto robot =
            model(key("arm", {group("g", {transform("t", {key("hand", {geometry("skin")})})})}));
        QCOMPARE(treeOf(robot), QStringLiteral("Robot(arm(hand))"));
    }

    void keyLeafDoesNotShowInTheFilteredTree()
    {
        const auto robot = model(key("arm", {key("leaf"), key("hand", {key("tip")})}));
        QCOMPARE(treeOf(robot), QStringLiteral("Robot(arm(hand))"));
        QCOMPARE(treeOf(robot, true), QStringLiteral("Robot(arm(leaf hand(tip)))"));
    }

    void modelWithoutKeyNodesAboveOthersShowsABareHeaderWhenFiltered_data()
    {
        QTest::addColumn<CEL_SharedPtr<TD_CelVq3d>>("shown");
        QTest::newRow("no key nodes") << model(group("g", {transform("t", {geometry("s")})}));
        QTest::newRow("key leaves") << model(group("g", {key("a"), key("b")}));
        QTest::newRow("lone key node") << model(key("a"));
        QTest::newRow("lone shape") << model(geometry("s"));
    }
    void modelWithoutKeyNodesAboveOthersShowsABareHeaderWhenFiltered()
    {
        QFETCH(CEL_SharedPtr<TD_CelVq3d>, shown);
        QCOMPARE(treeOf(shown), QStringLiteral("Robot"));
    }

    void modelWithoutRootShowsABareHeader()
    {
        QCOMPARE(treeOf(emptyModel()), QStringLiteral("Robot"));
        QCOMPARE(treeOf(emptyModel(), true), QStringLiteral("Robot"));
    }

    void elementWithoutModelShowsABareHeader()
    {
        QCOMPARE(treeOf(nullptr), QStringLiteral("Robot"));
        QCOMPARE(treeOf(nullptr, true), QStringLiteral("Robot"));
    }

    void childrenKeepTheOrderOfTheModel()
    {
        const auto robot =
            model(group("g", {key("c", {geometry("s")}), key("a", {geometry("s")}),
                              group("h", {key("d", {geometry("s")})}), key("b", {geometry("s")})}));
        QCOMPARE(treeOf(robot), QStringLiteral("Robot(c a d b)"));
        QCOMPARE(treeOf(robot, true), QStringLiteral("Robot(g(c(s) a(s) h(d(s)) b(s)))"));
    }

    void keyNodesAloneAreEditable()
    {
        ShownModels models;
        models.showOnly(QStringLiteral("Robot"),
                        model(group("g", {key("leaf"), transform("t"), geometry("s"), coreless("c"),
                                          key("arm", {geometry("skin")})})),
                        true);
        for (const char* name : {"leaf", "arm"})
            QVERIFY(models.node(QString::fromLatin1(name))->isEditable());
        for (const char* name : {"g", "t", "s", "c", "skin"})
            QVERIFY(!models.node(QString::fromLatin1(name))->isEditable());
    }

    void coreDerivedFromAKeyTransformMakesAKeyNode()
    {
        const osg::NodePtr joint = build(group("g"));
        joint->addChild(jointNode());
        osg::setName(joint->getChild(0), "joint");
        joint->getChild(0)->addChild(build(geometry("skin")));
        ShownModels models;
        models.showOnly(QStringLiteral("Robot"), model(joint));
        QCOMPARE(models.tree(), QStringLiteral("Robot(joint)"));
        QVERIFY(models.node(QStringLiteral("joint"))->isEditable());
        models.graph.displayModeChanged(true);
        QVERIFY(models.node(QStringLiteral("joint"))->isEditable());
    }

    void builtNodesKnowTheirParentsAndAreOpen_data()
    {
        QTest::addColumn<bool>("extended");
        QTest::newRow("filtered") << false;
        QTest::newRow("extended") << true;
    }
    void builtNodesKnowTheirParentsAndAreOpen()
    {
        QFETCH(bool, extended);
        ShownModels models;
        models.showOnly(QStringLiteral("Robot"), randomModel(5, 200), extended);
        for (GV_UiNode* node : preOrder(models.graph.rootUiNode())) {
            QVERIFY(!node->isCollapsed());
            QVERIFY(node->attachments().isEmpty());
            for (auto it = node->childrenBegin(); it != node->childrenEnd(); ++it)
                QCOMPARE((*it)->parent(), node);
        }
    }

    void treeKeepsItsModelAlive()
    {
        ShownModels models;
        MO_ElementModule* robot =
            models.showOnly(QStringLiteral("Robot"), model(key("arm", {geometry("skin")})));
        robot->exposeModel(1, 100000, nullptr);
        const auto* arm = dynamic_cast<GV_UiSgNode*>(models.node(QStringLiteral("arm")));
        QCOMPARE(osg::getName(arm->sgNode()), "arm");
        QCOMPARE(osg::getName(models.header(0)->rootNode()), "arm");
    }

    void names_data()
    {
        QTest::addColumn<Name>("bytes");
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << Name(noName) << QString();
        QTest::newRow("empty") << Name("") << QString();
        QTest::newRow("spaces") << Name("  a  b ") << QStringLiteral("  a  b ");
        QTest::newRow("UTF-8") << Name("\xc3\x84rmel") << QStringLiteral("\u00c4rmel");
        QTest::newRow("not UTF-8") << Name("\xc4rmel") << QStringLiteral("\u00c4rmel");
        QTest::newRow("UTF-8 cut short") << Name("a\xe6\x89") << QStringLiteral("a\u00e6\u0089");
        QTest::newRow("very long") << Name(std::string(10000, 'n')) << QString(10000, u'n');
        QTest::newRow("percent") << Name("%1 %n") << QStringLiteral("%1 %n");
    }
    void names()
    {
        QFETCH(Name, bytes);
        QFETCH(QString, name);
        for (const bool extended : {false, true}) {
            ShownModels models;
            models.showOnly(QStringLiteral("Robot"), model(key(bytes, {geometry("skin")})),
                            extended);
            const GV_UiNode* node = *models.graph.rootUiNode()->childrenBegin();
            QCOMPARE(node->name(), name);
            QCOMPARE(GV_UiNodeKey(node).nodeName, name);
            QCOMPARE(node->label().isEmpty(), name.isEmpty());
        }
    }

    void nodesOfOneNameStayApart()
    {
        const auto robot = model(key("a", {key("a", {geometry("s")}), key("a", {geometry("s")})}));
        QCOMPARE(treeOf(robot), QStringLiteral("Robot(a(a a))"));
    }

    void modelsMayBeDeeperThanTheStack_data() { builtNodesKnowTheirParentsAndAreOpen_data(); }
    void modelsMayBeDeeperThanTheStack()
    {
        QFETCH(bool, extended);
        constexpr int links = 20000;
        ShownModels models;
        models.showOnly(QStringLiteral("Chain"), chain(links), extended);
        const std::vector<GV_UiNode*> nodes = preOrder(models.graph.rootUiNode());
        QCOMPARE(int(nodes.size()), 1 + links + (extended ? 1 : 0));
        QCOMPARE(nodes.at(links)->name(), QStringLiteral("link19999"));
        QCOMPARE(nodes.at(links)->column(), links);
    }

    void anyModelGivesTheBoxesOfThePlainRule_data()
    {
        QTest::addColumn<int>("nodes");
        for (const int nodes : {1, 2, 3, 10, 50, 400})
            QTest::addRow("%d nodes", nodes) << nodes;
    }
    void anyModelGivesTheBoxesOfThePlainRule()
    {
        QFETCH(int, nodes);
        for (quint32 seed = 0; seed < 30; ++seed) {
            const auto shown = randomModel(seed, nodes);
            for (const bool extended : {false, true}) {
                ShownModels models;
                models.showOnly(QStringLiteral("Robot"), shown, extended);
                Boxes expected;
                addBoxes(expected, shown->rootNodePtr(), 1, extended);
                QVERIFY(boxesBelow(models.graph.rootUiNode()) == expected);
            }
        }
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoBuild)
#include "tst_GV_GraphUiInfoBuild.moc"
