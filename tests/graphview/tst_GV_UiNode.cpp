// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_UiHeaderNode.h"
#include "graphview/GV_UiSgNode.h"
#include "host/scene/MO_ElementModule.h"
#include "tests/graphview/ModelBuilder.h"

#include <QRegularExpression>
#include <QTest>
#include <memory>
#include <type_traits>

namespace {

/// Counts how often each one of them is destroyed.
class MortalNode : public GV_UiSgNode
{
public:
    explicit MortalNode(GV_UiNode* parent)
        : GV_UiSgNode(parent, QStringLiteral("mortal"), QString(), osg::NodePtr(), true)
        , _number(deaths.size())
    {
        deaths.push_back(0);
        if (parent)
            parent->addChild(this);
    }
    ~MortalNode() override { ++deaths.at(_number); }

    static inline std::vector<int> deaths;

private:
    std::size_t _number;
};

std::unique_ptr<GV_UiHeaderNode> newHeader(const QString& name = QStringLiteral("Robot"),
                                           const MO_ElementModule* element = nullptr)
{
    return std::make_unique<GV_UiHeaderNode>(name, QString(), osg::NodePtr(), element, true);
}

GV_UiSgNode* addPart(GV_UiNode& parent, const QString& name)
{
    auto* part = new GV_UiSgNode(&parent, name, QString(), osg::NodePtr(), true);
    parent.addChild(part);
    return part;
}

} // namespace

class tst_GV_UiNode : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        MortalNode::deaths.clear();
    }

    void objectTypesHaveTheirValues()
    {
        QCOMPARE(static_cast<int>(GV_UiNode::eText), 0);
        QCOMPARE(static_cast<int>(GV_UiNode::eBox), 1);
    }

    void selectionTypesHaveTheirValues()
    {
        QCOMPARE(static_cast<int>(GV_UiNode::eNoSelection), 0);
        QCOMPARE(static_cast<int>(GV_UiNode::eNodeSelection), 1);
        QCOMPARE(static_cast<int>(GV_UiNode::eCollapsingControlSelection), 2);
        QCOMPARE(static_cast<int>(GV_UiNode::eEmptySelection), 3);
    }

    void placedNodeTakesWhatItIsGiven()
    {
        GV_UiNode parent(nullptr, QStringLiteral("Arm"), QString(), false);
        const GV_UiNode node(&parent, QStringLiteral("Hand"), QStringLiteral("Ha"), 3, 7, true);
        QCOMPARE(node.parent(), &parent);
        QCOMPARE(node.name(), QStringLiteral("Hand"));
        QCOMPARE(node.displayName(), QStringLiteral("Ha"));
        QCOMPARE(node.column(), 3);
        QCOMPARE(node.row(), 7);
        QVERIFY(node.isEditable());
    }

    void unplacedNodeHasCountsOfMinusOne()
    {
        const GV_UiNode node(nullptr, QStringLiteral("Arm"), QStringLiteral("A"), false);
        QCOMPARE(node.column(), -1);
        QCOMPARE(node.row(), -1);
        QCOMPARE(node.parent(), nullptr);
        QCOMPARE(node.displayName(), QStringLiteral("A"));
        QVERIFY(!node.isEditable());
    }

    void newNodeIsOpenAndBare()
    {
        GV_UiNode placed(nullptr, QString(), QString(), 1, 2, true);
        GV_UiNode unplaced(nullptr, QString(), QString(), true);
        for (GV_UiNode* node : {&placed, &unplaced}) {
            QVERIFY(!node->isCollapsed());
            QVERIFY(!node->hasChildren());
            QCOMPARE(node->childrenBegin(), node->childrenEnd());
            QVERIFY(node->attachments().isEmpty());
        }
    }

    void parentIsNotToldOfANewChild()
    {
        GV_UiNode parent(nullptr, QString(), QString(), true);
        const GV_UiNode child(&parent, QString(), QString(), true);
        QVERIFY(!parent.hasChildren());
        QCOMPARE(child.parent(), &parent);
    }

    void headerStartsInTheCornerWithoutParentOrNumber()
    {
        const MO_ElementModule element(QStringLiteral("Robot"));
        const osg::NodeRefPtr root(ModelBuilder::build(ModelBuilder::group("root")));
        const GV_UiHeaderNode header(QStringLiteral("Robot"), QStringLiteral("R"), root, &element,
                                     true);
        QCOMPARE(header.parent(), nullptr);
        QCOMPARE(header.column(), 0);
        QCOMPARE(header.row(), 0);
        QCOMPARE(header.graphIx(), -1);
        QCOMPARE(header.name(), QStringLiteral("Robot"));
        QCOMPARE(header.displayName(), QStringLiteral("R"));
        QVERIFY(header.rootNode() == root.get());
        QCOMPARE(header.model(), &element);
        QVERIFY(header.isEditable());
    }

    void headerOutlivesItsElementAndKeepsTheName()
    {
        auto element = std::make_unique<MO_ElementModule>(QStringLiteral("Robot"));
        const auto header = newHeader(QStringLiteral("Robot"), element.get());
        element.reset();
        QCOMPARE(header->model(), nullptr);
        QCOMPARE(header->name(), QStringLiteral("Robot"));
    }

    void sgNodeHoldsItsSceneGraphNodeAndWaitsForItsPlace()
    {
        GV_UiNode parent(nullptr, QString(), QString(), true);
        const osg::NodeRefPtr arm(ModelBuilder::build(ModelBuilder::key("Arm")));
        const GV_UiSgNode node(&parent, QStringLiteral("Arm"), QString(), arm, false);
        QVERIFY(node.sgNode() == arm.get());
        QCOMPARE(node.parent(), &parent);
        QCOMPARE(node.column(), -1);
        QCOMPARE(node.row(), -1);
        QVERIFY(!node.isEditable());
    }

    void predicatesTellTheKind()
    {
        const GV_UiNode plain(nullptr, QString(), QString(), true);
        const GV_UiSgNode part(nullptr, QString(), QString(), osg::NodePtr(), true);
        const auto header = newHeader();
        QVERIFY(!plain.isHeaderNode() && !plain.isSgNode());
        QVERIFY(!part.isHeaderNode() && part.isSgNode());
        QVERIFY(header->isHeaderNode() && !header->isSgNode());
    }

    void labelIsTheDisplayNameWhereThereIsOne()
    {
        const GV_UiNode node(nullptr, QStringLiteral("Forearm"), QStringLiteral("F…m"), true);
        QCOMPARE(node.label(), QStringLiteral("F…m"));
    }

    void labelIsTheNameWhereThatFits()
    {
        const GV_UiNode node(nullptr, QStringLiteral("Arm"), QString(), true);
        QCOMPARE(node.label(), QStringLiteral("Arm"));
    }

    void namelessNodeHasAnEmptyLabel()
    {
        const GV_UiNode node(nullptr, QString(), QString(), true);
        QVERIFY(node.label().isEmpty());
    }

    void setNamesReplacesBothNames()
    {
        GV_UiNode node(nullptr, QStringLiteral("Arm"), QStringLiteral("A"), true);
        node.setNames(QStringLiteral("Leg"), QString());
        QCOMPARE(node.name(), QStringLiteral("Leg"));
        QCOMPARE(node.displayName(), QString());
        QCOMPARE(node.label(), QStringLiteral("Leg"));
    }

    void setCountsSetsColumnAndRow()
    {
        GV_UiNode node(nullptr, QString(), QString(), true);
        node.setCounts(4, 9);
        QCOMPARE(node.column(), 4);
        QCOMPARE(node.row(), 9);
    }

    void setEditableGivesTheValueBefore()
    {
        GV_UiNode node(nullptr, QString(), QString(), true);
        QVERIFY(node.setEditable(false));
        QVERIFY(!node.isEditable());
        QVERIFY(!node.setEditable(true));
        QVERIFY(node.setEditable(true));
        QVERIFY(node.isEditable());
    }

    void foldStateCanBeSetAndTakenBack()
    {
        GV_UiNode node(nullptr, QString(), QString(), true);
        node.setCollapsed(true);
        QVERIFY(node.isCollapsed());
        node.setCollapsed(false);
        QVERIFY(!node.isCollapsed());
    }

    void childrenKeepTheOrderOfTheirAdding()
    {
        const auto header = newHeader();
        GV_UiNode* first = addPart(*header, QStringLiteral("b"));
        GV_UiNode* second = addPart(*header, QStringLiteral("a"));
        GV_UiNode* third = addPart(*header, QStringLiteral("c"));
        QVERIFY(header->hasChildren());
        const GV_UiNode::Children children(header->childrenBegin(), header->childrenEnd());
        QCOMPARE(children, (GV_UiNode::Children{first, second, third}));
    }

    void clearChildrenDestroysAllBelowAndKeepsTheNode()
    {
        MortalNode top(nullptr);
        auto* child = new MortalNode(&top);
        new MortalNode(child);
        new MortalNode(&top);
        top.clearChildren();
        QVERIFY(!top.hasChildren());
        QCOMPARE(MortalNode::deaths, (std::vector<int>{0, 1, 1, 1}));
        QCOMPARE(top.name(), QStringLiteral("mortal"));
        new MortalNode(&top);
        QVERIFY(top.hasChildren());
    }

    void destroyingAHeaderDestroysEveryDescendantOnce()
    {
        constexpr int depth = 20000;
        auto header = newHeader();
        GV_UiNode* parent = header.get();
        for (int i = 0; i < depth; ++i) {
            new MortalNode(parent);
            parent = new MortalNode(parent);
        }
        header.reset();
        QCOMPARE(MortalNode::deaths, std::vector<int>(2 * depth, 1));
    }

    void dyingNodeReleasesItsAttachments()
    {
        const auto attached = std::make_shared<int>(0);
        {
            const auto header = newHeader();
            GV_UiNode* part = addPart(*header, QStringLiteral("Arm"));
            header->attachments().insert(2, attached);
            header->attachments().insert(1, attached);
            part->attachments().insert(1, attached);
            QCOMPARE(attached.use_count(), 4);
            QCOMPARE(header->attachments().keys(), (QList<std::uintptr_t>{1, 2}));
            header->clearChildren();
            QCOMPARE(attached.use_count(), 3);
        }
        QCOMPARE(attached.use_count(), 1);
    }

    void everyKindIsDestroyedThroughItsBase()
    {
        QVERIFY(std::has_virtual_destructor_v<GV_UiNode>);
        const std::unique_ptr<GV_UiNode> node(new MortalNode(nullptr));
        QVERIFY(!std::is_copy_constructible_v<GV_UiNode>);
        QVERIFY(!std::is_copy_assignable_v<GV_UiNode>);
    }

    void revisionsCountTheChangesOfTreesAndOfLayout()
    {
        const auto header = newHeader();
        const auto changes = [](auto revision, auto change) {
            const std::uint64_t before = revision();
            change();
            return revision() != before;
        };
        const auto tree = GV_UiNode::treeRevision;
        const auto layout = GV_UiNode::layoutRevision;
        QVERIFY(changes(tree, [&] { addPart(*header, QStringLiteral("Arm")); }));
        QVERIFY(changes(tree, [&] { header->setNames(QStringLiteral("R"), QString()); }));
        QVERIFY(changes(tree, [&] { header->clearChildren(); }));
        QVERIFY(changes(layout, [&] { header->setCounts(0, 1); }));
        QVERIFY(changes(layout, [&] { header->setCollapsed(true); }));
        QVERIFY(!changes(layout, [&] { header->setCollapsed(true); }));
        QVERIFY(!changes(tree, [&] { header->setEditable(false); }));
    }
};

QTEST_GUILESS_MAIN(tst_GV_UiNode)
#include "tst_GV_UiNode.moc"
