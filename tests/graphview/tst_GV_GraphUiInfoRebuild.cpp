// SPDX-License-Identifier: MIT

#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

/// What becomes of the selection when the trees that it was made in are rebuilt or go.
class tst_GV_GraphUiInfoRebuild : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ShownModels> _models;
    MO_ElementModule* _car = nullptr;
    MO_ElementModule* _robot = nullptr;

    GV_GraphUiInfo& graph() { return _models->graph; }

    GV_UiNode* node(const char* name) const { return _models->node(QString::fromLatin1(name)); }

    void select(const char* name)
    {
        QVERIFY(graph().setFirstNodeWithNameSelected(QString::fromLatin1(name)));
    }

    const GV_UiNode* valueOf(const GV_UiNodeKey& key) { return graph().selectedNodes().at(key); }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
        _car = _models->add(QStringLiteral("Car"), model(key("wheel", {geometry("w")})));
        _robot = _models->add(
            QStringLiteral("Robot"),
            model(key("arm", {key("hand", {geometry("skin")}), key("hand", {geometry("skin")})})));
        _models->show({_car, _robot}, _robot);
    }

    void cleanup() { _models.reset(); }

    void selectionMovesOnToTheNodesOfTheRebuiltTree()
    {
        select("arm");
        graph().setHeaderNodeSelected(_car);
        graph().displayModeChanged(true);
        QVERIFY(graph().isSubNodeSelected(node("arm")));
        QCOMPARE(valueOf(GV_UiNodeKey(node("arm"))), node("arm"));
        QCOMPARE(valueOf(GV_UiNodeKey(_models->header(0))), _models->header(0));
        QCOMPARE(graph().selectedNodes().size(), std::size_t(2));
    }

    void lastNodeOfAKeyIsTheOneInTheMap()
    {
        select("hand");
        const std::vector<GV_UiNode*> nodes = preOrder(graph().rootUiNode());
        QCOMPARE(valueOf(GV_UiNodeKey(node("hand"))), nodes.at(2));
        graph().displayModeChanged(false);
        QCOMPARE(valueOf(GV_UiNodeKey(node("hand"))), preOrder(graph().rootUiNode()).at(3));
    }

    void visibleHeaderIsTheLastOfItsKeyWhateverItsPlace()
    {
        _car->setInstanceName(QStringLiteral("Robot"));
        graph().updateHeaderNodesName({_models->header(0)});
        graph().setHeaderNodeSelected(_car);
        QCOMPARE(valueOf(GV_UiNodeKey(_models->header(0))), _models->header(0));
        graph().displayModeChanged(true);
        QCOMPARE(valueOf(GV_UiNodeKey(_models->header(0))), _models->header(1));
        _models->show({_car, _robot}, _car, true);
        QCOMPARE(valueOf(GV_UiNodeKey(_models->header(0))), _models->header(0));
    }

    void updateWithoutARebuildLeavesTheMapAlone()
    {
        select("hand");
        const GV_UiNode* first = node("hand");
        _models->show({_robot}, _robot);
        QCOMPARE(valueOf(GV_UiNodeKey(first)), first);
    }

    void keysThatNoLongerOccurStayWithoutANode()
    {
        graph().displayModeChanged(true);
        select("skin");
        const GV_UiNodeKey key(node("skin"));
        graph().displayModeChanged(false);
        QCOMPARE(graph().selectedNodes().size(), std::size_t(1));
        QCOMPARE(valueOf(key), nullptr);
        graph().displayModeChanged(true);
        QCOMPARE(valueOf(key)->name(), QStringLiteral("skin"));
    }

    void rebuildAddsNoKeys()
    {
        graph().displayModeChanged(true);
        QVERIFY(graph().selectedNodes().empty());
    }

    void nodesOfATreeThatWaitsForItsModeAreForgotten()
    {
        select("arm");
        const GV_UiNodeKey key(node("arm"));
        _models->show({_car, _robot}, _car);
        _models->show({_car, _robot}, _car, true);
        QCOMPARE(valueOf(key), nullptr);
        _models->show({_car, _robot}, _robot, true);
        QCOMPARE(valueOf(key), node("arm"));
    }

    void nodesOfAModelThatIsNoLongerGivenAreForgotten()
    {
        select("arm");
        graph().setHeaderNodeSelected(_robot);
        const GV_UiNodeKey arm(node("arm"));
        const GV_UiNodeKey header(_models->header(1));
        _models->show({_car}, _car);
        QCOMPARE(valueOf(arm), nullptr);
        QCOMPARE(valueOf(header), nullptr);
        _models->show({_car, _robot}, _robot);
        QCOMPARE(valueOf(arm), node("arm"));
        QCOMPARE(valueOf(header), _models->header(1));
    }

    void headerThatReturnsBearsItsKeyAgainWithoutARebuild()
    {
        graph().setHeaderNodeSelected(_car);
        const GV_UiNodeKey key(_models->header(0));
        _models->show({_robot}, _robot);
        QCOMPARE(valueOf(key), nullptr);
        _models->show({_robot, _car}, _robot);
        QCOMPARE(valueOf(key), _models->header(1));
    }

    void headerThatReplacesOneOfItsNameBearsItsKey()
    {
        ShownModels models;
        MO_ElementModule* old = models.add(QStringLiteral("Car"), model(key("wheel")));
        models.show({old}, nullptr);
        QVERIFY(models.graph.setHeaderNodeSelected(old));
        MO_ElementModule* young = models.add(QStringLiteral("Car"), model(key("wheel")));
        models.show({young}, nullptr);
        QCOMPARE(models.graph.selectedNodes().at(GV_UiNodeKey(models.header(0))), models.header(0));
    }

    void newHeaderDoesNotTakeAKeyFromOneThatIsShown()
    {
        graph().setHeaderNodeSelected(_car);
        MO_ElementModule* namesake = _models->add(QStringLiteral("Car"), emptyModel());
        _models->show({namesake, _car, _robot}, _robot);
        QCOMPARE(valueOf(GV_UiNodeKey(_models->header(0))), _models->header(1));
    }

    void clearingTheGraphKeepsTheKeysAndForgetsTheNodes()
    {
        select("arm");
        graph().setHeaderNodeSelected(_car);
        graph().clearUiNodeGraph();
        QCOMPARE(graph().selectedNodes().size(), std::size_t(2));
        for (const auto& [key, node] : graph().selectedNodes())
            QCOMPARE(node, nullptr);
        _models->show({_car, _robot}, _robot);
        QVERIFY(graph().isSubNodeSelected(node("arm")));
        QCOMPARE(valueOf(GV_UiNodeKey(node("arm"))), node("arm"));
    }

    void anySequenceOfUpdatesLeavesOnlyLivingNodesInTheMap()
    {
        for (quint32 seed = 0; seed < 25; ++seed) {
            QRandomGenerator random(seed);
            ShownModels models;
            std::vector<MO_ElementModule*> elements;
            for (quint32 i = 0; i < 3; ++i)
                elements.push_back(
                    models.add(QStringLiteral("m%1").arg(i % 2), randomModel(seed + i, 60)));
            for (int round = 0; round < 30; ++round) {
                std::vector<MO_ElementModule*> given;
                for (MO_ElementModule* element : elements) {
                    if (random.bounded(4) != 0)
                        given.push_back(element);
                }
                const auto visible = static_cast<std::size_t>(random.bounded(3));
                models.show(given, elements.at(visible), random.bounded(3) == 0);
                for (int i = 0; i < 3; ++i)
                    models.graph.setFirstNodeWithNameSelected(
                        QStringLiteral("part%1").arg(random.bounded(12)));
                models.graph.setHeaderNodeSelected(elements.at(visible));

                std::set<const GV_UiNode*> living{nullptr};
                for (int ix = 0; ix < static_cast<int>(given.size()); ++ix) {
                    for (const GV_UiNode* node : preOrder(models.header(ix)))
                        living.insert(node);
                }
                for (const auto& [key, node] : models.graph.selectedNodes()) {
                    QVERIFY(living.contains(node));
                    QVERIFY(!node || GV_UiNodeKey(node) == key);
                }
                models.graph.selectionRect();
                if (random.bounded(8) == 0)
                    models.graph.clearSelection(random.bounded(2) == 0);
            }
        }
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoRebuild)
#include "tst_GV_GraphUiInfoRebuild.moc"
