// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_UiSgNode.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRegularExpression>
#include <QStringList>
#include <QTest>
#include <cstring>
#include <type_traits>

using namespace ModelBuilder;

namespace {

/// Notes the names of the nodes that it visits, whatever their kind.
template <class Base>
class NameVisitor : public Base
{
public:
    using Base::visit;
    void visit(GV_UiNode* node) override { names.append(node->name()); }

    QStringList names;
};

class KindVisitor : public GV_GraphVisitor
{
public:
    void visit(GV_UiSgNode*) override { kinds.append(QStringLiteral("part")); }
    void visit(GV_UiHeaderNode*) override { kinds.append(QStringLiteral("header")); }
    void visit(GV_UiNode*) override { kinds.append(QStringLiteral("node")); }

    QStringList kinds;
};

class HeaderOnlyVisitor : public NameVisitor<GV_GraphVisitor>
{
public:
    using NameVisitor::visit;
    void visit(GV_UiHeaderNode*) override { ++headers; }

    int headers = 0;
};

class IdleVisitor : public GV_GraphVisitor
{
};

class FoldingVisitor : public GV_VisibleTreeVisitor
{
public:
    using GV_VisibleTreeVisitor::visit;
    void visit(GV_UiNode* node) override { node->setCollapsed(true); }
};

template <class Visitor>
QStringList visited(GV_GraphUiInfo& graph)
{
    NameVisitor<Visitor> visitor;
    graph.accept(visitor);
    return visitor.names;
}

/// The place of a virtual function in its class's table, which is the order of declaration that
/// separately built code relies on.
template <class Function>
[[maybe_unused]] std::ptrdiff_t tablePlace(Function function)
{
    std::ptrdiff_t offset = 0;
    std::memcpy(&offset, &function, sizeof offset);
    return (offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

} // namespace

class tst_GV_GraphVisitor : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ShownModels> _models;
    MO_ElementModule* _car = nullptr;
    MO_ElementModule* _robot = nullptr;
    MO_ElementModule* _tree = nullptr;

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
        _car = _models->add(QStringLiteral("Car"), model(key("wheel", {geometry("w")})));
        _robot = _models->add(QStringLiteral("Robot"),
                              model(key("body", {key("arm", {key("hand", {geometry("h")})}),
                                                 key("leg", {geometry("l")})})));
        _tree = _models->add(QStringLiteral("Tree"), model(key("stem", {geometry("s")})));
    }

    void cleanup() { _models.reset(); }

    void nodesAcceptByTheirKind()
    {
        GV_UiNode node(nullptr, QString(), QString(), true);
        GV_UiHeaderNode header(QString(), QString(), osg::NodePtr(), {}, true);
        GV_UiSgNode part(nullptr, QString(), QString(), osg::NodePtr(), true);
        KindVisitor visitor;
        for (GV_UiNode* accepting :
             {&node, static_cast<GV_UiNode*>(&header), static_cast<GV_UiNode*>(&part)})
            accepting->accept(visitor);
        QCOMPARE(visitor.kinds, QStringList({"node", "header", "part"}));
    }

    void kindsThatAVisitorDoesNotTakeUpReachItsVisitOfAnyNode()
    {
        _models->show({_robot}, _robot);
        QCOMPARE(visited<GV_GraphVisitor>(_models->graph),
                 QStringList({"Robot", "body", "arm", "hand", "leg"}));
    }

    void kindThatAVisitorTakesUpNoLongerReachesItsVisitOfAnyNode()
    {
        _models->show({_car, _robot}, _robot);
        HeaderOnlyVisitor visitor;
        _models->graph.accept(visitor);
        QCOMPARE(visitor.headers, 2);
        QCOMPARE(visitor.names, QStringList({"body", "arm", "hand", "leg"}));
    }

    void visitorThatTakesUpNothingIgnoresEverything()
    {
        _models->show({_robot}, _robot);
        const QString before = _models->tree();
        IdleVisitor visitor;
        _models->graph.accept(visitor);
        QCOMPARE(_models->tree(), before);
    }

    void visibleTreeComesLastWhateverItsPlace_data()
    {
        QTest::addColumn<int>("visible");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("first") << 0 << QStringList({"Robot", "Tree", "Car", "wheel"});
        QTest::newRow("middle") << 1
                                << QStringList(
                                       {"Car", "Tree", "Robot", "body", "arm", "hand", "leg"});
        QTest::newRow("last") << 2 << QStringList({"Car", "Robot", "Tree", "stem"});
    }
    void visibleTreeComesLastWhateverItsPlace()
    {
        QFETCH(int, visible);
        _models->show({_car, _robot, _tree}, std::array{_car, _robot, _tree}.at(visible));
        QTEST(visited<GV_GraphVisitor>(_models->graph), "names");
    }

    void treesThatAreNotVisibleAreNotEntered()
    {
        _models->show({_car, _robot, _tree}, _robot);
        _models->show({_car, _robot, _tree}, _tree);
        QVERIFY(_models->header(1)->hasChildren());
        QCOMPARE(visited<GV_GraphVisitor>(_models->graph),
                 QStringList({"Car", "Robot", "Tree", "stem"}));
    }

    void withoutAVisibleTreeEachHeaderIsVisitedOnce()
    {
        _models->show({_car, _robot, _tree}, _robot);
        _models->show({_car, _robot, _tree}, nullptr);
        QCOMPARE(_models->graph.visibleGraphIx(), -1);
        QCOMPARE(visited<GV_GraphVisitor>(_models->graph), QStringList({"Car", "Robot", "Tree"}));
    }

    void headerVisitorSeesEveryHeaderInOrderAndNothingElse()
    {
        _models->show({_car, _robot, _tree}, _robot);
        QCOMPARE(visited<GV_HeaderVisitor>(_models->graph), QStringList({"Car", "Robot", "Tree"}));
    }

    void visibleTreeVisitorSeesTheVisibleTreeFromItsHeaderDown()
    {
        _models->show({_car, _robot, _tree}, _robot);
        QCOMPARE(visited<GV_VisibleTreeVisitor>(_models->graph),
                 QStringList({"Robot", "body", "arm", "hand", "leg"}));
    }

    void visibleTreeVisitorSeesNothingWithoutAVisibleTree()
    {
        _models->show({_car, _robot}, nullptr);
        QVERIFY(visited<GV_VisibleTreeVisitor>(_models->graph).isEmpty());
    }

    void emptyGraphIsNotVisited()
    {
        QVERIFY(visited<GV_GraphVisitor>(_models->graph).isEmpty());
        QVERIFY(visited<GV_HeaderVisitor>(_models->graph).isEmpty());
        QVERIFY(visited<GV_VisibleTreeVisitor>(_models->graph).isEmpty());
    }

    void foldedNodesAreEnteredAsWell()
    {
        _models->show({_robot}, _robot);
        _models->header(0)->setCollapsed(true);
        _models->node(QStringLiteral("arm"))->setCollapsed(true);
        _models->graph.calculateGeometricData();
        const QStringList all{"Robot", "body", "arm", "hand", "leg"};
        QCOMPARE(visited<GV_GraphVisitor>(_models->graph), all);
        QCOMPARE(visited<GV_VisibleTreeVisitor>(_models->graph), all);
    }

    void visitorMayFoldNodesOnItsWay()
    {
        _models->show({_robot}, _robot);
        FoldingVisitor visitor;
        _models->graph.accept(visitor);
        for (const GV_UiNode* node : preOrder(_models->graph.rootUiNode()))
            QVERIFY(node->isCollapsed());
    }

    void walkIsAsDeepAsTheModel()
    {
        constexpr int links = 20000;
        _models->showOnly(QStringLiteral("Chain"), chain(links));
        const QStringList names = visited<GV_GraphVisitor>(_models->graph);
        QCOMPARE(names.size(), links + 1);
        QCOMPARE(names.last(), QStringLiteral("link19999"));
    }

    void visitorsHaveNoVirtualDestructor()
    {
        QVERIFY(!std::has_virtual_destructor_v<GV_GraphVisitor>);
        QVERIFY(!std::has_virtual_destructor_v<GV_HeaderVisitor>);
        QVERIFY(!std::has_virtual_destructor_v<GV_VisibleTreeVisitor>);
    }

    void visitorsAreToldApartByTheirTypeAlone()
    {
        QVERIFY((std::is_base_of_v<GV_GraphVisitor, GV_HeaderVisitor>));
        QVERIFY((std::is_base_of_v<GV_GraphVisitor, GV_VisibleTreeVisitor>));
        QCOMPARE(sizeof(GV_HeaderVisitor), sizeof(GV_GraphVisitor));
        QCOMPARE(sizeof(GV_VisibleTreeVisitor), sizeof(GV_GraphVisitor));
    }

#if defined(__x86_64__)
    void virtualFunctionsStandInTheirOrder()
    {
        QCOMPARE(tablePlace(&GV_UiNode::isHeaderNode), 0);
        QCOMPARE(tablePlace(&GV_UiNode::isSgNode), 1);
        QCOMPARE(tablePlace(&GV_UiNode::accept), 2);
        using Visit = void (GV_GraphVisitor::*)(GV_UiNode*);
        using VisitHeader = void (GV_GraphVisitor::*)(GV_UiHeaderNode*);
        using VisitPart = void (GV_GraphVisitor::*)(GV_UiSgNode*);
        QCOMPARE(tablePlace(static_cast<VisitPart>(&GV_GraphVisitor::visit)), 0);
        QCOMPARE(tablePlace(static_cast<VisitHeader>(&GV_GraphVisitor::visit)), 1);
        QCOMPARE(tablePlace(static_cast<Visit>(&GV_GraphVisitor::visit)), 2);
    }
#endif
};

QTEST_MAIN(tst_GV_GraphVisitor)
#include "tst_GV_GraphVisitor.moc"
