// SPDX-License-Identifier: MIT

#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

/// What happens to a graph as a whole: a change of its display mode, of its headers' names, and
/// copying.
class tst_GV_GraphUiInfoModes : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ShownModels> _models;
    MO_ElementModule* _car = nullptr;
    MO_ElementModule* _robot = nullptr;

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
        _car = _models->add(QStringLiteral("Car"), model(key("wheel", {geometry("w")})));
        _robot = _models->add(QStringLiteral("Robot"),
                              model(group("g", {key("arm", {key("hand", {geometry("s")})})})));
    }

    void cleanup() { _models.reset(); }

    void displayModeOfAnEmptyGraphCannotChange()
    {
        QVERIFY(!_models->graph.displayModeChanged(true));
        QVERIFY(!_models->graph.displayModeChanged(false));
    }

    void displayModeCannotChangeWithoutAVisibleTree()
    {
        _models->show({_robot}, nullptr);
        QVERIFY(!_models->graph.displayModeChanged(true));
        QVERIFY(!_models->header(0)->hasChildren());
    }

    void displayModeRebuildsTheVisibleTree()
    {
        _models->show({_robot}, _robot);
        QVERIFY(_models->graph.displayModeChanged(true));
        QCOMPARE(_models->tree(), QStringLiteral("Robot(g(arm(hand(s))))"));
        QVERIFY(_models->graph.displayModeChanged(false));
        QCOMPARE(_models->tree(), QStringLiteral("Robot(arm(hand))"));
    }

    void displayModeRebuildsTheTreeEvenWhenItIsTheSame()
    {
        _models->show({_robot}, _robot);
        GV_UiHeaderNode* header = _models->header(0);
        header->setCollapsed(true);
        _models->node(QStringLiteral("arm"))->setCollapsed(true);
        QVERIFY(_models->graph.displayModeChanged(false));
        QVERIFY(!_models->node(QStringLiteral("arm"))->isCollapsed());
        QCOMPARE(_models->header(0), header);
        QVERIFY(header->isCollapsed());
    }

    void rebuiltTreeIsLaidOut()
    {
        _models->show({_robot}, _robot);
        _models->graph.displayModeChanged(true);
        QCOMPARE(_models->node(QStringLiteral("hand"))->row(), 3);
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 136 + 4 * 24, 5 * 34));
    }

    void otherTreesKeepTheirModeUntilTheNextUpdate()
    {
        _models->show({_car, _robot}, _car);
        _models->show({_car, _robot}, _robot);
        _models->graph.displayModeChanged(true);
        QCOMPARE(outline(_models->header(0)), QStringLiteral("Car(wheel)"));
        QVERIFY(!_models->show({_car, _robot}, _robot, true));
        QVERIFY(!_models->header(0)->hasChildren());
        _models->show({_car, _robot}, _car, true);
        QCOMPARE(_models->tree(), QStringLiteral("Car(wheel(w))"));
    }

    void displayModeIsTheModeOfTheNextUpdates()
    {
        _models->show({_robot}, _robot);
        _models->graph.displayModeChanged(true);
        const std::vector<GV_UiNode*> nodes = preOrder(_models->graph.rootUiNode());
        QVERIFY(!_models->show({_robot}, _robot, true));
        QCOMPARE(preOrder(_models->graph.rootUiNode()), nodes);
    }

    void renamedElementsRenameTheirHeaders()
    {
        _models->show({_car, _robot}, _robot);
        _car->setInstanceName(QStringLiteral("Bus"));
        _robot->setInstanceName(QStringLiteral("Android"));
        _models->graph.updateHeaderNodesName({_models->header(0)});
        QCOMPARE(_models->header(0)->name(), QStringLiteral("Bus"));
        QCOMPARE(_models->header(1)->name(), QStringLiteral("Robot"));
        QCOMPARE(_models->tree(), QStringLiteral("Robot(arm(hand))"));
    }

    void renamedHeadersAreShortenedWhereTheyMust()
    {
        _models->show({_robot}, _robot);
        _robot->setInstanceName(QString(200, u'm'));
        _models->graph.updateHeaderNodesName({_models->header(0)});
        QCOMPARE(_models->header(0)->name(), QString(200, u'm'));
        QVERIFY(!_models->header(0)->displayName().isEmpty());
        QVERIFY(_models->header(0)->label().size() < 200);
        _robot->setInstanceName(QStringLiteral("R"));
        _models->graph.updateHeaderNodesName({_models->header(0)});
        QCOMPARE(_models->header(0)->displayName(), QString());
    }

    void headersOfElementsThatAreGoneKeepTheirNames()
    {
        _models->show({_car, _robot}, _robot);
        _models->remove(_car);
        _robot->setInstanceName(QStringLiteral("Android"));
        _models->graph.updateHeaderNodesName({_models->header(0), _models->header(1)});
        QCOMPARE(_models->header(0)->name(), QStringLiteral("Car"));
        QCOMPARE(_models->header(1)->name(), QStringLiteral("Android"));
    }

    void updateAloneDoesNotRenameHeaders()
    {
        _models->show({_robot}, _robot);
        _robot->setInstanceName(QStringLiteral("Android"));
        _models->show({_robot}, _robot);
        QCOMPARE(_models->header(0)->name(), QStringLiteral("Robot"));
    }

    void selectionStaysUnderTheOldNameOfAHeader()
    {
        _models->show({_robot}, _robot);
        _models->graph.setHeaderNodeSelected(_robot);
        const GV_UiNodeKey oldKey(_models->header(0));
        _robot->setInstanceName(QStringLiteral("Android"));
        _models->graph.updateHeaderNodesName({_models->header(0)});
        QVERIFY(!_models->graph.isSubNodeSelected(_models->header(0)));
        QVERIFY(_models->graph.selectedNodes().contains(oldKey));
    }

    void copySharesTheTreesAndHasASelectionOfItsOwn()
    {
        _models->show({_car, _robot}, _robot);
        _models->graph.setHeaderNodeSelected(_robot);
        GV_GraphUiInfo copy(_models->graph);
        QCOMPARE(copy.visibleGraphIx(), 1);
        QCOMPARE(copy.rootUiNode(), _models->header(1));
        QCOMPARE(copy.modelNode(0), _car);
        QVERIFY(copy.isSubNodeSelected(_models->header(1)));
        QCOMPARE(copy.boundingRect(), _models->graph.boundingRect());

        copy.clearSelection(false);
        QVERIFY(_models->graph.isSubNodeSelected(_models->header(1)));
        // Only one of the two may destroy the trees; the other one lets go of them.
        copy = GV_GraphUiInfo();
        QVERIFY(copy.isEmpty());
        QCOMPARE(copy.rootUiNode(), nullptr);
        QCOMPARE(_models->tree(), QStringLiteral("Robot(arm(hand))"));
    }

    void copyFindsTheNodesOfItsTrees()
    {
        _models->show({_car, _robot}, _robot);
        GV_GraphUiInfo copy(_models->graph);
        int graphIx = -1;
        GV_UiNode* node = nullptr;
        auto part = GV_UiNode::eNoSelection;
        QVERIFY(copy.getNodeSelectionInfo({160.0 + 48.0, 68.0}, graphIx, node, part));
        QCOMPARE(node, _models->node(QStringLiteral("hand")));
        QVERIFY(copy.setFirstNodeWithNameSelected(QStringLiteral("hand")));
        QVERIFY(copy.isSubNodeSelected(node));
        QVERIFY(!_models->graph.isSubNodeSelected(node));
        copy = GV_GraphUiInfo();
    }

    void assignmentTakesWhatTheOtherOneShows()
    {
        _models->show({_car, _robot}, _robot);
        _models->graph.setFirstNodeWithNameSelected(QStringLiteral("arm"));
        GV_GraphUiInfo assigned;
        assigned = _models->graph;
        QCOMPARE(assigned.rootUiNode(), _models->header(1));
        QCOMPARE(assigned.selectedNodes().size(), std::size_t(1));
        const GV_GraphUiInfo& itself = assigned;
        assigned = itself;
        QCOMPARE(assigned.rootUiNode(), _models->header(1));
        assigned = GV_GraphUiInfo();
    }

    void recordsAreCopiedWithoutTheirTrees()
    {
        _models->show({_robot}, _robot);
        GV_GraphUiInfo::GraphInfo record;
        record.rootNode = _models->header(0);
        {
            const GV_GraphUiInfo::GraphInfo copy = record;
            QCOMPARE(copy.rootNode, record.rootNode);
        }
        QCOMPARE(_models->tree(), QStringLiteral("Robot(arm(hand))"));
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoModes)
#include "tst_GV_GraphUiInfoModes.moc"
