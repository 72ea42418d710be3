// SPDX-License-Identifier: MIT

#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

CEL_SharedPtr<TD_CelVq3d> armModel()
{
    return model(group("g", {key("arm", {key("hand", {geometry("skin")})})}));
}

} // namespace

class tst_GV_GraphUiInfoUpdate : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ShownModels> _models;
    MO_ElementModule* _car = nullptr;
    MO_ElementModule* _robot = nullptr;

    QStringList headers() const
    {
        std::vector<const GV_UiNode*> nodes;
        _models->graph.headerNodes(nodes);
        QStringList names;
        for (const GV_UiNode* node : nodes)
            names.append(node->name());
        return names;
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
        _car = _models->add(QStringLiteral("Car"), model(key("wheel", {geometry("w")})));
        _robot = _models->add(QStringLiteral("Robot"), armModel());
    }

    void cleanup() { _models.reset(); }

    void newGraphIsEmpty()
    {
        const GV_GraphUiInfo& graph = _models->graph;
        QVERIFY(graph.isEmpty());
        QCOMPARE(graph.visibleGraphIx(), -1);
        QCOMPARE(graph.rootUiNode(), nullptr);
        QCOMPARE(graph.visibleGraphModelNode(), nullptr);
        QCOMPARE(graph.modelNode(0), nullptr);
        QVERIFY(_models->graph.selectedNodes().empty());
    }

    void headersFollowTheModelsAndAreNumbered()
    {
        QVERIFY(_models->show({_robot, _car}, _car));
        QVERIFY(!_models->graph.isEmpty());
        QCOMPARE(headers(), QStringList({"Robot", "Car"}));
        QCOMPARE(_models->header(0)->graphIx(), 0);
        QCOMPARE(_models->header(1)->graphIx(), 1);
        QCOMPARE(_models->graph.visibleGraphIx(), 1);
        QCOMPARE(_models->graph.rootUiNode(), _models->header(1));
        QCOMPARE(_models->graph.visibleGraphModelNode(), _car);
    }

    void headerNodesAreAppended()
    {
        _models->show({_robot, _car}, _car);
        std::vector<const GV_UiNode*> nodes{nullptr};
        QCOMPARE(_models->graph.headerNodes(nodes), 1);
        QCOMPARE(nodes,
                 (std::vector<const GV_UiNode*>{nullptr, _models->header(0), _models->header(1)}));
    }

    void modelNodeIsNullOutsideTheList()
    {
        _models->show({_robot, _car}, nullptr);
        QCOMPARE(_models->graph.modelNode(0), _robot);
        QCOMPARE(_models->graph.modelNode(1), _car);
        QCOMPARE(_models->graph.modelNode(-1), nullptr);
        QCOMPARE(_models->graph.modelNode(2), nullptr);
    }

    void nullElementsAreLeftOut()
    {
        _models->show({nullptr, _car, nullptr, _robot}, _robot);
        QCOMPARE(headers(), QStringList({"Car", "Robot"}));
        QCOMPARE(_models->graph.visibleGraphIx(), 1);
    }

    void nullVisibleModelOpensNoTreeEvenWithNullElements()
    {
        _models->show({nullptr, _car}, nullptr);
        QCOMPARE(_models->graph.visibleGraphIx(), -1);
        QVERIFY(!_models->header(0)->hasChildren());
    }

    void visibleModelThatIsNotAmongTheModelsOpensNoTree()
    {
        _models->show({_car}, _robot);
        QCOMPARE(_models->graph.visibleGraphIx(), -1);
        QCOMPARE(_models->graph.rootUiNode(), nullptr);
        QVERIFY(!_models->header(0)->hasChildren());
    }

    void onlyTheVisibleTreeIsBuilt()
    {
        _models->show({_car, _robot}, _robot);
        QCOMPARE(_models->tree(), QStringLiteral("Robot(arm(hand))"));
        QVERIFY(!_models->header(0)->hasChildren());
    }

    void sameListTwiceIsNoChangeAndKeepsEveryNode()
    {
        QVERIFY(_models->show({_car, _robot}, _robot));
        const std::vector<GV_UiNode*> robot = preOrder(_models->header(1));
        GV_UiHeaderNode* car = _models->header(0);
        QVERIFY(!_models->show({_car, _robot}, _robot));
        QCOMPARE(preOrder(_models->header(1)), robot);
        QCOMPARE(_models->header(0), car);
    }

    void elementsOfTheLongerFormMakeNoDifference()
    {
        const auto models = ShownModels::models({_car, _robot});
        QVERIFY(_models->graph.updateGraphUiInfo(models, {_car}, _robot, true));
        QCOMPARE(_models->tree(), QStringLiteral("Robot(g(arm(hand(skin))))"));
        QVERIFY(!_models->graph.updateGraphUiInfo(models, {}, _robot, true));
        QVERIFY(!_models->graph.updateGraphUiInfo(models, {_car, _robot, nullptr}, _robot, true));
    }

    void newModelThatIsNotVisibleIsNoChange()
    {
        _models->show({_robot}, _robot);
        QVERIFY(!_models->show({_robot, _car}, _robot));
        QCOMPARE(headers(), QStringList({"Robot", "Car"}));
    }

    void orderAloneIsNoChangeWhileTheVisibleModelStaysInPlace()
    {
        MO_ElementModule* tree = _models->add(QStringLiteral("Tree"), nullptr);
        _models->show({_robot, _car, tree}, _robot);
        GV_UiHeaderNode* car = _models->header(1);
        QVERIFY(!_models->show({_robot, tree, _car}, _robot));
        QCOMPARE(headers(), QStringList({"Robot", "Tree", "Car"}));
        QCOMPARE(_models->header(2), car);
        QCOMPARE(car->graphIx(), 2);
    }

    void visibleModelThatMovesIsAChange()
    {
        _models->show({_robot}, _robot);
        const std::vector<GV_UiNode*> nodes = preOrder(_models->graph.rootUiNode());
        QVERIFY(_models->show({_car, _robot}, _robot));
        QCOMPARE(preOrder(_models->graph.rootUiNode()), nodes);
        QCOMPARE(_models->graph.rootUiNode()->graphIx(), 1);
    }

    void closingTheVisibleTreeIsAChangeAndKeepsItsNodes()
    {
        _models->show({_robot}, _robot);
        const std::vector<GV_UiNode*> nodes = preOrder(_models->header(0));
        QVERIFY(_models->show({_robot}, nullptr));
        QCOMPARE(_models->graph.rootUiNode(), nullptr);
        QVERIFY(_models->show({_robot}, _robot));
        QCOMPARE(preOrder(_models->graph.rootUiNode()), nodes);
    }

    void modelThatIsNoLongerGivenIsAChange()
    {
        _models->show({_robot, _car}, _robot);
        QVERIFY(_models->show({_robot}, _robot));
        QCOMPARE(headers(), QStringList({"Robot"}));
        QVERIFY(_models->show({}, nullptr));
        QVERIFY(_models->graph.isEmpty());
        QVERIFY(!_models->show({}, nullptr));
    }

    void editabilityFollowsTheElementAndIsNoChange()
    {
        _robot->setEditable(false);
        _models->show({_robot}, _robot);
        QVERIFY(!_models->header(0)->isEditable());
        _robot->setEditable(true);
        QVERIFY(!_models->header(0)->isEditable());
        QVERIFY(!_models->show({_robot}, _robot));
        QVERIFY(_models->header(0)->isEditable());
    }

    void foldedNodesStayFoldedInKeptTrees()
    {
        _models->show({_robot, _car}, _robot);
        _models->node(QStringLiteral("arm"))->setCollapsed(true);
        _models->header(0)->setCollapsed(true);
        _models->show({_car, _robot}, _car);
        _models->show({_robot}, _robot);
        QVERIFY(_models->node(QStringLiteral("arm"))->isCollapsed());
        QVERIFY(_models->header(0)->isCollapsed());
    }

    void displayModeRebuildsOnlyTheVisibleTreeAtOnce()
    {
        _models->show({_car, _robot}, _car);
        _models->show({_car, _robot}, _robot);
        const std::vector<GV_UiHeaderNode*> headersBefore{_models->header(0), _models->header(1)};
        _models->node(QStringLiteral("arm"))->setCollapsed(true);

        QVERIFY(_models->show({_car, _robot}, _robot, true));
        QCOMPARE(_models->tree(), QStringLiteral("Robot(g(arm(hand(skin))))"));
        QVERIFY(!_models->node(QStringLiteral("arm"))->isCollapsed());
        QVERIFY(!_models->header(0)->hasChildren());
        QCOMPARE(_models->header(0), headersBefore.at(0));
        QCOMPARE(_models->header(1), headersBefore.at(1));

        QVERIFY(_models->show({_car, _robot}, _car, true));
        QCOMPARE(_models->tree(), QStringLiteral("Car(wheel(w))"));
    }

    void emptyVisibleTreeIsBuiltAnewAtEveryUpdate()
    {
        const osg::NodePtr root = build(group("g", {geometry("s")}));
        MO_ElementModule* plain = _models->showOnly(QStringLiteral("Plain"), model(root));
        QVERIFY(_models->show({plain}, plain));
        QCOMPARE(_models->tree(), QStringLiteral("Plain"));
        root->addChild(build(key("arm", {geometry("s")})));
        QVERIFY(_models->show({plain}, plain));
        QCOMPARE(_models->tree(), QStringLiteral("Plain(arm)"));
        QVERIFY(!_models->show({plain}, plain));
    }

    void keptTreeDoesNotFollowItsModelUntilItIsCleared()
    {
        const osg::NodePtr root = build(group("g", {key("arm", {geometry("s")})}));
        MO_ElementModule* robot = _models->showOnly(QStringLiteral("R"), model(root));
        root->addChild(build(key("leg", {geometry("s")})));
        QVERIFY(!_models->show({robot}, robot));
        QCOMPARE(_models->tree(), QStringLiteral("R(arm)"));
        _models->graph.clearUiNodeGraph();
        QVERIFY(_models->show({robot}, robot));
        QCOMPARE(_models->tree(), QStringLiteral("R(arm leg)"));
    }

    void keptTreeStaysWithTheModelThatItWasBuiltFrom()
    {
        _models->show({_robot}, _robot);
        _robot->exposeModel(1, 100000, model(key("other", {geometry("s")})));
        QVERIFY(!_models->show({_robot}, _robot));
        QCOMPARE(_models->tree(), QStringLiteral("Robot(arm(hand))"));
        QVERIFY(_models->show({_robot}, _robot, true));
        QCOMPARE(_models->tree(), QStringLiteral("Robot(g(arm(hand(skin))))"));
    }

    void elementGivenTwiceIsShownTwice()
    {
        QVERIFY(_models->show({_robot, _robot}, _robot));
        QCOMPARE(headers(), QStringList({"Robot", "Robot"}));
        QVERIFY(_models->header(0) != _models->header(1));
        QCOMPARE(_models->graph.visibleGraphIx(), 1);
        QVERIFY(!_models->header(0)->hasChildren());
    }

    void elementGivenOnceMoreThanBeforeGetsANewHeaderBehindItsOldOne()
    {
        _models->show({_robot}, nullptr);
        GV_UiHeaderNode* first = _models->header(0);
        QVERIFY(!_models->show({_robot, _robot}, nullptr));
        GV_UiHeaderNode* second = _models->header(1);
        QCOMPARE(_models->header(0), first);
        QVERIFY(!_models->show({_robot, _robot}, nullptr));
        QCOMPARE(_models->header(0), first);
        QCOMPARE(_models->header(1), second);
        QVERIFY(_models->show({_robot}, nullptr));
        QCOMPARE(_models->header(0), first);
    }

    void elementThatIsGoneLeavesItsHeaderUntilTheNextUpdate()
    {
        _models->show({_car, _robot}, _robot);
        _models->remove(_robot);
        QCOMPARE(_models->graph.modelNode(1), nullptr);
        QCOMPARE(_models->graph.visibleGraphModelNode(), nullptr);
        QCOMPARE(_models->header(1)->model(), nullptr);
        QCOMPARE(_models->tree(), QStringLiteral("Robot(arm(hand))"));
        QVERIFY(_models->show({_car}, nullptr));
        QCOMPARE(headers(), QStringList({"Car"}));
    }

    void clearingForgetsTheModels()
    {
        _models->show({_car, _robot}, _robot);
        _models->graph.clearUiNodeGraph();
        QVERIFY(_models->graph.isEmpty());
        QCOMPARE(_models->graph.visibleGraphIx(), -1);
        QCOMPARE(_models->graph.rootUiNode(), nullptr);
        QVERIFY(headers().isEmpty());
        _models->graph.clearUiNodeGraph();
        QVERIFY(_models->graph.isEmpty());
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoUpdate)
#include "tst_GV_GraphUiInfoUpdate.moc"
