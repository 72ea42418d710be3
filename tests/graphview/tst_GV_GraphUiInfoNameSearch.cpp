// SPDX-License-Identifier: MIT

#include "tests/graphview/CarAndRobotTest.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

/// The first node of this name that has a parent, by plain recursion.
const GV_UiNode* plainFirstWithName(const GV_UiNode* node, const QString& name)
{
    if (node->name() == name && node->parent())
        return node;
    for (auto it = node->childrenBegin(); it != node->childrenEnd(); ++it) {
        if (const GV_UiNode* found = plainFirstWithName(*it, name))
            return found;
    }
    return nullptr;
}

} // namespace

/// Selecting a part of the visible tree by its name.
class tst_GV_GraphUiInfoNameSearch : public CarAndRobotTest
{
    Q_OBJECT

private slots:
    void firstNodeWithANameIsSelected()
    {
        QVERIFY(graph().setFirstNodeWithNameSelected(QStringLiteral("hand")));
        QCOMPARE(_models->selected(), QStringList({"arm/hand"}));
        QCOMPARE(selectedNode(node("hand")), node("hand"));
    }

    void nodeWithANameIsSelectedEvenWhenItIsNotEditable()
    {
        graph().displayModeChanged(true);
        QVERIFY(graph().setFirstNodeWithNameSelected(QStringLiteral("skin")));
        QCOMPARE(_models->selected(), QStringList({"hand/skin"}));
    }

    void nodeWithANameIsSelectedEvenWhenItIsFoldedAway()
    {
        _models->header(1)->setCollapsed(true);
        graph().calculateGeometricData();
        QVERIFY(graph().setFirstNodeWithNameSelected(QStringLiteral("hand")));
        QCOMPARE(_models->selected(), QStringList({"arm/hand"}));
    }

    void headersNameDoesNotSelectTheHeader()
    {
        QVERIFY(!graph().setFirstNodeWithNameSelected(QStringLiteral("Robot")));
        QVERIFY(!graph().setFirstNodeWithNameSelected(QStringLiteral("Car")));
        QVERIFY(graph().selectedNodes().empty());
    }

    void partWithTheHeadersNameIsSelected()
    {
        _models->showOnly(QStringLiteral("Twin"), model(key("Twin", {geometry("s")})));
        QVERIFY(graph().setFirstNodeWithNameSelected(QStringLiteral("Twin")));
        QCOMPARE(_models->selected(), QStringList({"Twin/Twin"}));
    }

    void namesAreComparedExactly()
    {
        for (const char* name : {"Arm", "ar", "arm ", "armhand", "wheel", ""})
            QVERIFY(!graph().setFirstNodeWithNameSelected(QString::fromLatin1(name)));
        QVERIFY(graph().selectedNodes().empty());
    }

    void emptyNameSelectsTheFirstNamelessNode()
    {
        _models->showOnly(QStringLiteral("R"),
                          model(key("a", {key(noName, {geometry("s")}), key("", {key("b")})})));
        QVERIFY(graph().setFirstNodeWithNameSelected(QString()));
        QCOMPARE(_models->selected(), QStringList({"a/"}));
        QCOMPARE(selectedNode(preOrder(graph().rootUiNode()).at(2)),
                 preOrder(graph().rootUiNode()).at(2));
    }

    void nameIsNotFoundWithoutAVisibleTree()
    {
        _models->show({_car, _robot}, nullptr);
        QVERIFY(!graph().setFirstNodeWithNameSelected(QStringLiteral("arm")));
        graph().clearUiNodeGraph();
        QVERIFY(!graph().setFirstNodeWithNameSelected(QStringLiteral("arm")));
    }

    void nameIsNotFoundBelowABareHeader()
    {
        _models->showOnly(QStringLiteral("Bare"), emptyModel());
        QVERIFY(!graph().setFirstNodeWithNameSelected(QStringLiteral("Bare")));
        QVERIFY(!graph().setFirstNodeWithNameSelected(QString()));
    }

    void modelsMayBeDeeperThanTheStack()
    {
        _models->showOnly(QStringLiteral("Chain"), chain(20000), true);
        QVERIFY(graph().setFirstNodeWithNameSelected(QStringLiteral("link19999")));
        QCOMPARE(_models->selected(), QStringList({"link19998/link19999"}));
    }

    void anyNameIsFoundByThePlainRule()
    {
        for (quint32 seed = 0; seed < 40; ++seed) {
            QRandomGenerator random(seed);
            ShownModels models;
            const auto name = [&] { return QStringLiteral("part%1").arg(random.bounded(14)); };
            MO_ElementModule* element = models.showOnly(name(), randomModel(seed, 80));
            for (int round = 0; round < 12; ++round) {
                switch (random.bounded(4)) {
                case 0:
                    models.graph.displayModeChanged(random.bounded(2) == 0);
                    break;
                case 1:
                    foldAtRandom(random, models.graph.rootUiNode());
                    models.graph.calculateGeometricData();
                    break;
                case 2:
                    element->setInstanceName(name());
                    models.graph.updateHeaderNodesName({models.header(0)});
                    break;
                default:
                    models.show({element}, element, random.bounded(2) == 0);
                }
                for (int i = 0; i < 15; ++i) {
                    const QString wanted = i == 0 ? QString() : name();
                    const GV_UiNode* expected = plainFirstWithName(models.header(0), wanted);
                    models.graph.clearSelection(false);
                    QCOMPARE(models.graph.setFirstNodeWithNameSelected(wanted),
                             expected != nullptr);
                    QCOMPARE(models.graph.selectedNodes().size(), std::size_t(expected ? 1 : 0));
                    if (expected)
                        QCOMPARE(models.graph.selectedNodes().at(GV_UiNodeKey(expected)), expected);
                }
            }
        }
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoNameSearch)
#include "tst_GV_GraphUiInfoNameSearch.moc"
