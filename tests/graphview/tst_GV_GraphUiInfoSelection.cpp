// SPDX-License-Identifier: MIT

#include "tests/graphview/CarAndRobotTest.h"

#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

class tst_GV_GraphUiInfoSelection : public CarAndRobotTest
{
    Q_OBJECT

private slots:
    void nodeIsSelectedByItsKey()
    {
        QVERIFY(!graph().isSubNodeSelected(node("arm")));
        QVERIFY(graph().setFirstNodeSelected(node("arm")));
        QVERIFY(graph().isSubNodeSelected(node("arm")));
        QVERIFY(!graph().isSubNodeSelected(node("hand")));
        QCOMPARE(_models->selected(), QStringList({"Robot/arm"}));
        QCOMPARE(selectedNode(node("arm")), node("arm"));
    }

    void nodesThatShareAKeyAreSelectedTogether()
    {
        _models->showOnly(QStringLiteral("Twins"),
                          model(key("a", {key("b", {geometry("s")}), key("b", {geometry("s")})})));
        graph().setFirstNodeSelected(node("b"));
        const std::vector<GV_UiNode*> nodes = preOrder(graph().rootUiNode());
        QCOMPARE(graph().selectedNodes().size(), std::size_t(1));
        QVERIFY(graph().isSubNodeSelected(nodes.at(2)));
        QVERIFY(graph().isSubNodeSelected(nodes.at(3)));
        QVERIFY(!graph().isSubNodeSelected(nodes.at(1)));
    }

    void nullNodeHasTheEmptyKey()
    {
        QVERIFY(!graph().isSubNodeSelected(nullptr));
        graph().selectedNodes()[GV_UiNodeKey(nullptr)] = nullptr;
        QVERIFY(graph().isSubNodeSelected(nullptr));
    }

    void mapHoldsOneKeyABucketAtMost()
    {
        QCOMPARE(graph().selectedNodes().max_load_factor(), 1.0F);
    }

    void clearedSelectionIsEmptyAndSmall()
    {
        const std::size_t buckets = GV_GraphUiInfo().selectedNodes().bucket_count();
        QVERIFY(buckets >= 8);
        _models->showOnly(QStringLiteral("Chain"), chain(100));
        for (int link = 0; link < 100; ++link)
            graph().setFirstNodeWithNameSelected(QStringLiteral("link%1").arg(link));
        QCOMPARE(graph().selectedNodes().size(), std::size_t(100));
        graph().clearSelection(false);
        QVERIFY(graph().selectedNodes().empty());
        QCOMPARE(graph().selectedNodes().bucket_count(), buckets);
    }

    void clearingMayKeepTheHeaders()
    {
        graph().setHeaderNodeSelected(_car);
        graph().setHeaderNodeSelected(_robot);
        for (const char* name : {"arm", "hand", "leg"})
            graph().setFirstNodeSelected(node(name));
        QCOMPARE(graph().selectedNodes().size(), std::size_t(5));
        graph().clearSelection(true);
        QCOMPARE(_models->selected(), QStringList({"/Car", "/Robot"}));
        QCOMPARE(selectedNode(_models->header(0)), _models->header(0));
        graph().clearSelection(false);
        QVERIFY(graph().selectedNodes().empty());
    }

    void clearingWithHeadersKeptDropsKeysWithoutANode()
    {
        graph().setHeaderNodeSelected(_car);
        graph().setHeaderNodeSelected(_robot);
        _models->show({_robot}, _robot);
        QCOMPARE(_models->selected(), QStringList({"/Car", "/Robot"}));
        graph().clearSelection(true);
        QCOMPARE(_models->selected(), QStringList({"/Robot"}));
    }

    void firstEditableNodeInPreOrderIsSelected()
    {
        graph().displayModeChanged(true);
        QVERIFY(graph().setFirstNodeSelected(node("g")));
        QCOMPARE(_models->selected(), QStringList({"g/arm"}));
        QVERIFY(graph().setFirstNodeSelected(node("leg")));
        QCOMPARE(_models->selected(), QStringList({"g/arm", "g/leg"}));
    }

    void firstEditableNodeMayLieBelowASiblingsSubtree()
    {
        _models->showOnly(
            QStringLiteral("R"),
            model(group("g", {group("h", {geometry("s")}), group("i", {key("k")}), key("l")})),
            true);
        QVERIFY(graph().setFirstNodeSelected(node("g")));
        QCOMPARE(_models->selected(), QStringList({"i/k"}));
    }

    void foldedNodesAreSearchedForAnEditableOne()
    {
        graph().displayModeChanged(true);
        node("g")->setCollapsed(true);
        graph().calculateGeometricData();
        QVERIFY(graph().setFirstNodeSelected(node("g")));
        QCOMPARE(_models->selected(), QStringList({"g/arm"}));
    }

    void nodesThatAreNotEditableAreNotSelected()
    {
        graph().displayModeChanged(true);
        QVERIFY(!graph().setFirstNodeSelected(node("skin")));
        QVERIFY(!graph().setFirstNodeSelected(nullptr));
        QVERIFY(graph().selectedNodes().empty());
    }

    void bareHeaderThatIsNotEditableIsNotSelected()
    {
        MO_ElementModule* bare = _models->add(QStringLiteral("Bare"), emptyModel());
        bare->setEditable(false);
        _models->show({_robot, bare}, _robot);
        graph().setFirstNodeSelected(node("arm"));
        QVERIFY(!graph().setFirstNodeSelected(_models->header(1)));
        QVERIFY(!graph().setHeaderNodeSelected(bare));
        QCOMPARE(_models->selected(), QStringList({"Robot/arm"}));
    }

    void headerIsSelectedForItsElement()
    {
        QVERIFY(graph().setHeaderNodeSelected(_car));
        QCOMPARE(_models->selected(), QStringList({"/Car"}));
        QCOMPARE(selectedNode(_models->header(0)), _models->header(0));
    }

    void noHeaderIsSelectedForNoElement()
    {
        ShownModels models;
        MO_ElementModule* car = models.add(QStringLiteral("Car"), model(key("wheel")));
        models.show({car}, nullptr);
        models.remove(car);
        QVERIFY(!models.graph.setHeaderNodeSelected(nullptr));
        QVERIFY(models.graph.selectedNodes().empty());
    }

    void firstHeaderIsSelectedForAnElementShownTwice()
    {
        _models->show({_robot, _car, _car}, _robot);
        QVERIFY(graph().setHeaderNodeSelected(_car));
        QCOMPARE(selectedNode(_models->header(1)), _models->header(1));
    }

    void elementThatIsNotEditableSelectsItsFirstKeyNode()
    {
        _robot->setEditable(false);
        _models->show({_car, _robot}, _robot);
        QVERIFY(graph().setHeaderNodeSelected(_robot));
        QCOMPARE(_models->selected(), QStringList({"Robot/arm"}));
    }

    void elementThatIsNotShownSelectsNothing()
    {
        QVERIFY(!graph().setHeaderNodeSelected(_models->add(QStringLiteral("Car"), emptyModel())));
        QVERIFY(graph().selectedNodes().empty());
    }

    void editableNodesAreFoundInModelsDeeperThanTheStack()
    {
        _models->showOnly(QStringLiteral("Chain"), chain(20000), true);
        for (GV_UiNode* node : preOrder(graph().rootUiNode()))
            node->setEditable(node->name() == QLatin1String("link19999"));
        QVERIFY(graph().setFirstNodeSelected(graph().rootUiNode()));
        QCOMPARE(_models->selected(), QStringList({"link19998/link19999"}));
    }

    void marqueeSelectsNothing()
    {
        std::set<GV_UiNode*> nodes{node("arm")};
        QVERIFY(!graph().rectSelection(nodes, {-1000, -1000, 1000, 1000}));
        QCOMPARE(nodes, std::set<GV_UiNode*>{node("arm")});
        QVERIFY(graph().selectedNodes().empty());
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoSelection)
#include "tst_GV_GraphUiInfoSelection.moc"
