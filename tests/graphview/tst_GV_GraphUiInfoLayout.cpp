// SPDX-License-Identifier: MIT

#include "graphview/GV_LayoutGrid.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <map>

using namespace ModelBuilder;

namespace {

using Counts = std::pair<int, int>;

Counts countsOf(const GV_UiNode* node)
{
    return {node->column(), node->row()};
}

/// Where each node of a tree should be, by plain recursion, and how far the tree reaches.
struct PlainLayout
{
    std::map<const GV_UiNode*, Counts> counts;
    int maxColumn = -1;
    int maxRow = -1;

    void place(const GV_UiNode* node, int column, int& row)
    {
        counts[node] = {column, row};
        maxColumn = std::max(maxColumn, column);
        maxRow = std::max(maxRow, row);
        for (auto it = node->childrenBegin(); it != node->childrenEnd(); ++it) {
            if (node->isCollapsed())
                hide(*it);
            else
                place(*it, column + 1, ++row);
        }
    }

    void hide(const GV_UiNode* node)
    {
        counts[node] = {-1, -1};
        for (auto it = node->childrenBegin(); it != node->childrenEnd(); ++it)
            hide(*it);
    }
};

} // namespace

class tst_GV_GraphUiInfoLayout : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ShownModels> _models;

    /// Robot(a(b(c d) e(f(g) h)) i): nine parts on rows 1 to 9.
    void showNineParts()
    {
        const auto part = [](const char* name, Parts parts) {
            parts.push_back(geometry(noName));
            return key(name, parts);
        };
        _models->showOnly(
            QStringLiteral("Robot"),
            model(
                group("root", {part("a", {part("b", {part("c", {}), part("d", {})}),
                                          part("e", {part("f", {part("g", {})}), part("h", {})})}),
                               part("i", {})})));
    }

    Counts countsOfPart(const char* name) const
    {
        return countsOf(_models->node(QString::fromLatin1(name)));
    }

    void fold(const char* name, bool folded = true)
    {
        _models->node(QString::fromLatin1(name))->setCollapsed(folded);
        _models->graph.calculateGeometricData();
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
    }

    void cleanup() { _models.reset(); }

    void gridHasItsMeasures()
    {
        using namespace GV_LayoutGrid;
        QCOMPARE(headerPitch, 160);
        QCOMPARE(boxWidth, 136);
        QCOMPARE(boxHeight, 24);
        QCOMPARE(indent, 24);
        QCOMPARE(rowPitch, 34);
        QCOMPARE(labelWidth, 124);
        QCOMPARE(controlRadius, 4);
        QCOMPARE(controlCentreX, 12.5);
        QCOMPARE(controlCentreY, 29);
    }

    void nodesTakeRowsInPreOrderAndColumnsByDepth()
    {
        showNineParts();
        QCOMPARE(countsOf(_models->graph.rootUiNode()), Counts(0, 0));
        int row = 0;
        for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h", "i"})
            QCOMPARE(countsOfPart(name).second, ++row);
        QCOMPARE(countsOfPart("a").first, 1);
        QCOMPARE(countsOfPart("b").first, 2);
        QCOMPARE(countsOfPart("d").first, 3);
        QCOMPARE(countsOfPart("g").first, 4);
        QCOMPARE(countsOfPart("i").first, 1);
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 4 * 24 + 136, 10 * 34));
    }

    void foldedNodeOnRowFiveHidesItsDescendantsAndLaterNodesMoveUp()
    {
        showNineParts();
        fold("e");
        QCOMPARE(countsOfPart("e"), Counts(2, 5));
        for (const char* name : {"f", "g", "h"})
            QCOMPARE(countsOfPart(name), Counts(-1, -1));
        QCOMPARE(countsOfPart("d"), Counts(3, 4));
        QCOMPARE(countsOfPart("i"), Counts(1, 6));
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 3 * 24 + 136, 7 * 34));
    }

    void openedNodeShowsItsDescendantsAgain()
    {
        showNineParts();
        fold("e");
        fold("e", false);
        QCOMPARE(countsOfPart("g"), Counts(4, 7));
        QCOMPARE(countsOfPart("i"), Counts(1, 9));
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 4 * 24 + 136, 10 * 34));
    }

    void nodesFoldedBelowAFoldedNodeStayFoldedWhenThatOpens()
    {
        showNineParts();
        fold("f");
        fold("a");
        QCOMPARE(countsOfPart("f"), Counts(-1, -1));
        QCOMPARE(countsOfPart("i"), Counts(1, 2));
        fold("a", false);
        QCOMPARE(countsOfPart("f"), Counts(3, 6));
        QCOMPARE(countsOfPart("g"), Counts(-1, -1));
        QCOMPARE(countsOfPart("h"), Counts(3, 7));
    }

    void foldedHeaderShowsItselfAlone()
    {
        showNineParts();
        _models->header(0)->setCollapsed(true);
        _models->graph.calculateGeometricData();
        QCOMPARE(countsOf(_models->header(0)), Counts(0, 0));
        for (const GV_UiNode* node : preOrder(_models->header(0))) {
            if (node->isSgNode())
                QCOMPARE(countsOf(node), Counts(-1, -1));
        }
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 136, 34));
    }

    void flagAloneMovesNothing()
    {
        showNineParts();
        _models->node(QStringLiteral("a"))->setCollapsed(true);
        QCOMPARE(countsOfPart("i"), Counts(1, 9));
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 4 * 24 + 136, 10 * 34));
    }

    void bareHeaderIsOneRowHighAndOneBoxWide()
    {
        _models->showOnly(QStringLiteral("Robot"), emptyModel());
        QCOMPARE(countsOf(_models->header(0)), Counts(0, 0));
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 136, 34));
    }

    void emptyGraphHasAnEmptyExtent()
    {
        QVERIFY(_models->graph.boundingRect().isEmpty());
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di());
        _models->graph.calculateGeometricData();
        QVERIFY(_models->graph.boundingRect().isEmpty());
    }

    void threeHeadersMakeARowOf456By24()
    {
        const auto add = [this] { return _models->add(QStringLiteral("m"), emptyModel()); };
        _models->show({add(), add(), add()}, nullptr);
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 456, 24));
    }

    void treeStandsBelowItsHeaderAndWidensTheExtent()
    {
        MO_ElementModule* car = _models->add(QStringLiteral("Car"), emptyModel());
        MO_ElementModule* chained = _models->add(QStringLiteral("Chain"), chain(10));
        _models->show({car, chained}, chained);
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 160 + 10 * 24 + 136, 11 * 34));
        _models->show({chained, car, car, car}, chained);
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 4 * 160 - 24, 11 * 34));
    }

    void closedTreesTakeNoRoom()
    {
        MO_ElementModule* chained = _models->showOnly(QStringLiteral("Chain"), chain(10));
        _models->show({chained}, nullptr);
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 136, 24));
    }

    void headersOfClosedTreesKeepTheirPlaceInTheRow()
    {
        MO_ElementModule* car = _models->add(QStringLiteral("Car"), chain(2));
        MO_ElementModule* robot = _models->add(QStringLiteral("Robot"), chain(3));
        _models->show({car, robot}, robot);
        _models->show({car, robot}, car);
        QCOMPARE(countsOf(_models->header(0)), Counts(0, 0));
        QCOMPARE(countsOf(_models->header(1)), Counts(0, 0));
    }

    void layoutLeavesClosedTreesAlone()
    {
        MO_ElementModule* car = _models->add(QStringLiteral("Car"), chain(2));
        MO_ElementModule* robot = _models->add(QStringLiteral("Robot"), chain(3));
        _models->show({car, robot}, car);
        _models->show({car, robot}, robot);
        _models->header(0)->setCollapsed(true);
        _models->graph.calculateGeometricData();
        QCOMPARE(countsOf(*_models->header(0)->childrenBegin()), Counts(1, 1));
    }

    void negativeCountsReachTheNodeAndAllBelowIt()
    {
        showNineParts();
        _models->graph.propagateNegativeCounts(_models->node(QStringLiteral("e")));
        for (const char* name : {"e", "f", "g", "h"})
            QCOMPARE(countsOfPart(name), Counts(-1, -1));
        QCOMPARE(countsOfPart("d"), Counts(3, 4));
        QCOMPARE(countsOfPart("i"), Counts(1, 9));
    }

    void modelsMayBeDeeperThanTheStack()
    {
        constexpr int links = 20000;
        _models->showOnly(QStringLiteral("Chain"), chain(links));
        QCOMPARE(countsOfPart("link19999"), Counts(links, links));
        QCOMPARE(_models->graph.boundingRect(),
                 Math::Box2di(0, 0, links * 24 + 136, (links + 1) * 34));
        fold("link0");
        QCOMPARE(countsOfPart("link19999"), Counts(-1, -1));
        QCOMPARE(_models->graph.boundingRect(), Math::Box2di(0, 0, 24 + 136, 2 * 34));
    }

    void anyTreeIsLaidOutByThePlainRule()
    {
        for (quint32 seed = 0; seed < 60; ++seed) {
            QRandomGenerator random(seed);
            ShownModels models;
            MO_ElementModule* first = models.add(QStringLiteral("First"), emptyModel());
            MO_ElementModule* shown =
                models.add(QStringLiteral("Shown"), randomModel(seed, 1 + random.bounded(300)));
            models.show({first, shown}, shown, seed % 2 == 0);
            for (int round = 0; round < 5; ++round) {
                foldAtRandom(random, models.graph.rootUiNode());
                models.graph.calculateGeometricData();

                PlainLayout plain;
                int row = 0;
                plain.place(models.graph.rootUiNode(), 0, row);
                for (const auto& [node, counts] : plain.counts)
                    QCOMPARE(countsOf(node), counts);
                const int right = 160 + plain.maxColumn * 24 + 136;
                QCOMPARE(models.graph.boundingRect(),
                         Math::Box2di(0, 0, right, (plain.maxRow + 1) * 34));
            }
        }
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoLayout)
#include "tst_GV_GraphUiInfoLayout.moc"
