// SPDX-License-Identifier: MIT

#include "graphview/GV_ShownRows.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <limits>

using namespace ModelBuilder;

namespace {

struct Hit
{
    bool found = false;
    GV_UiNode* node = nullptr;
    int graphIx = 0;
    int part = 0;

    friend bool operator==(const Hit&, const Hit&) = default;
};

Hit hitAt(const GV_GraphUiInfo& graph, double x, double y)
{
    Hit hit;
    GV_UiNode::eSelectionType part = GV_UiNode::eNoSelection;
    // Lives on, since the death of any node makes the graph look at its rows anew.
    static GV_UiNode untouched(nullptr, QString(), QString(), true);
    hit.node = &untouched;
    hit.found = graph.getNodeSelectionInfo({x, y}, hit.graphIx, hit.node, part);
    hit.part = part;
    // Without a node the other results say nothing.
    return hit.found ? hit : Hit{false, hit.node, 0, 0};
}

/// The node shown on a row, by plain recursion.
GV_UiNode* plainVisibleNode(GV_UiNode* node, int row)
{
    if (node->row() == row)
        return node;
    if (node->isCollapsed())
        return nullptr;
    for (auto it = node->childrenBegin(); it != node->childrenEnd(); ++it) {
        if (GV_UiNode* found = plainVisibleNode(*it, row))
            return found;
    }
    return nullptr;
}

int plainPart(const GV_UiNode* node, double x, double y)
{
    const double left = node->column() * 24;
    if (!(x >= left && x < left + 136))
        return GV_UiNode::eNoSelection;
    const double px = x - left;
    const double py = y - node->row() * 34;
    if (py < 24)
        return px < 136 ? GV_UiNode::eNodeSelection : GV_UiNode::eEmptySelection;
    const double dx = px - 12.5;
    const double dy = py - 29;
    return dx * dx + dy * dy < 16 ? GV_UiNode::eCollapsingControlSelection
                                  : GV_UiNode::eEmptySelection;
}

Hit plainHitAt(const GV_GraphUiInfo& graph, double x, double y)
{
    std::vector<const GV_UiNode*> headers;
    const int visibleIx = graph.headerNodes(headers);
    const int column = x < 0 ? -1 : static_cast<int>(x / 160);
    const int row = y < 0 ? -1 : static_cast<int>(y / 34);
    Hit hit;
    if (row < 0 || headers.empty())
        return {};
    if (row > 0) {
        if (visibleIx < 0 || column < visibleIx)
            return {};
        hit.graphIx = visibleIx;
        hit.node = plainVisibleNode(graph.rootUiNode(), row);
    } else {
        if (column < 0 || column >= static_cast<int>(headers.size()))
            return {};
        hit.graphIx = column;
        hit.node = const_cast<GV_UiNode*>(headers.at(static_cast<std::size_t>(column)));
    }
    if (!hit.node)
        return {};
    hit.found = true;
    hit.part = plainPart(hit.node, x - hit.graphIx * 160, y);
    return hit;
}

/// Coordinates of all kinds: anywhere, on and right beside the lines of the grid, and far off.
double randomCoordinate(QRandomGenerator& random, int pitch, int cells)
{
    const double extent = double(cells + 2) * pitch;
    switch (random.bounded(6)) {
    case 0:
        return random.bounded(cells + 2) * pitch + random.bounded(pitch) * 1.0;
    case 1:
        return random.bounded(cells + 2) * pitch + (random.bounded(3) - 1) * 1e-9;
    case 2:
        return (random.generateDouble() - 0.5) * 2e9;
    case 3:
        return random.bounded(cells + 2) * 24 + (random.bounded(2) ? 136 : 12.5);
    default:
        return (random.generateDouble() * 1.2 - 0.1) * extent;
    }
}

} // namespace

class tst_GV_GraphUiInfoHitTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ShownModels> _models;

    /// Three headers; under the second, arm(hand) on rows 1 and 2.
    void showThree(int visible = 1)
    {
        MO_ElementModule* car = _models->add(QStringLiteral("Car"), emptyModel());
        MO_ElementModule* robot = _models->add(
            QStringLiteral("Robot"), model(key("arm", {key("hand", {geometry("skin")})})));
        MO_ElementModule* tree = _models->add(QStringLiteral("Tree"), emptyModel());
        _models->show({car, robot, tree}, visible == 1 ? robot : nullptr);
    }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
    }

    void cleanup() { _models.reset(); }

    void pointHits_data()
    {
        constexpr int none = GV_UiNode::eNoSelection;
        constexpr int box = GV_UiNode::eNodeSelection;
        constexpr int control = GV_UiNode::eCollapsingControlSelection;
        constexpr int empty = GV_UiNode::eEmptySelection;
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("part");
        const auto hits = [](const char* row, double x, double y, const char* name, int part) {
            QTest::newRow(row) << x << y << QString::fromLatin1(name) << part;
        };
        const auto misses = [](const char* row, double x, double y) {
            QTest::newRow(row) << x << y << QString() << 0;
        };
        hits("corner of the first header", 0, 0, "Car", box);
        hits("negative zero", -0.0, -0.0, "Car", box);
        hits("last of the first header's box", 135.99, 23.99, "Car", box);
        hits("right of the first header's box", 136, 0, "Car", none);
        hits("before the second header", 159.99, 12, "Car", none);
        hits("second header", 160, 12, "Robot", box);
        hits("third header", 320 + 135, 12, "Tree", box);
        hits("right of the third header", 479.99, 12, "Tree", none);
        misses("behind the last header", 480, 12);
        misses("left of the header row", -0.5, 12);
        misses("above the header row", 10, -0.5);
        hits("below a header's box", 2, 24, "Car", empty);
        hits("end of the header row", 100, 33.9, "Car", empty);
        hits("end of the header row, right of the box", 136, 33.9, "Car", none);
        hits("centre of a header's control", 12.5, 29, "Car", control);
        hits("inside the control's rim", 12.5, 32.99, "Car", control);
        hits("control's rim, below", 12.5, 33, "Car", empty);
        hits("control's rim, right", 16.5, 29, "Car", empty);
        hits("control's rim, left", 8.5, 29, "Car", empty);
        hits("control's rim, above", 12.5, 25, "Car", empty);
        hits("control of a header in its place", 160 + 12.5, 29, "Robot", control);
        hits("first row", 184, 34, "arm", box);
        hits("left of the first row's box", 183.99, 34, "arm", none);
        hits("last of the first row's box", 184 + 135.99, 34 + 23.99, "arm", box);
        hits("right of the first row's box", 184 + 136, 34, "arm", none);
        hits("far right of the first row", 1e9, 40, "arm", none);
        hits("farther right than numbers count", 1e300, 40, "arm", none);
        hits("below the first row's box", 190, 34 + 24, "arm", empty);
        hits("control of the first row", 184 + 12.5, 34 + 29, "arm", control);
        hits("second row", 208, 68, "hand", box);
        hits("control of the second row", 208 + 12.5, 68 + 29, "hand", control);
        hits("last of the second row", 208, 101.99, "hand", empty);
        misses("below the last row", 208, 102);
        misses("far below", 208, 1e9);
        misses("farther below than numbers count", 208, 1e300);
        misses("left of the visible header's column", 159.99, 40);
        misses("tree area left of everything", -0.5, 40);
        misses("nowhere", std::numeric_limits<double>::quiet_NaN(), 12);
        misses("nowhere below", 12, std::numeric_limits<double>::quiet_NaN());
        misses("infinitely far left", -std::numeric_limits<double>::infinity(), 12);
        misses("infinitely far down", 200, std::numeric_limits<double>::infinity());
    }
    void pointHits()
    {
        QFETCH(double, x);
        QFETCH(double, y);
        QFETCH(QString, name);
        showThree();
        const Hit hit = hitAt(_models->graph, x, y);
        QCOMPARE(hit.found, !name.isEmpty());
        QCOMPARE(hit.node ? hit.node->name() : QString(), name);
        QTEST(hit.part, "part");
    }

    void hitSaysWhichModelItIs()
    {
        showThree();
        QCOMPARE(hitAt(_models->graph, 10, 10).graphIx, 0);
        QCOMPARE(hitAt(_models->graph, 330, 10).graphIx, 2);
        QCOMPARE(hitAt(_models->graph, 190, 40).graphIx, 1);
        QCOMPARE(hitAt(_models->graph, 5000, 40).graphIx, 1);
    }

    void emptyGraphIsNeverHit()
    {
        QCOMPARE(hitAt(_models->graph, 10, 10), Hit());
        QCOMPARE(hitAt(_models->graph, 10, 40), Hit());
    }

    void withoutAVisibleTreeOnlyHeadersAreHit()
    {
        showThree(-1);
        QVERIFY(hitAt(_models->graph, 170, 10).found);
        QCOMPARE(hitAt(_models->graph, 190, 40), Hit());
    }

    void foldedNodeItselfIsHit()
    {
        showThree();
        _models->node(QStringLiteral("arm"))->setCollapsed(true);
        _models->graph.calculateGeometricData();
        QCOMPARE(hitAt(_models->graph, 184, 34).node, _models->node(QStringLiteral("arm")));
        QCOMPARE(hitAt(_models->graph, 208, 68), Hit());
    }

    void nodesBelowAFlagThatWasSetAfterLayoutAreNotHit()
    {
        showThree();
        QVERIFY(hitAt(_models->graph, 208, 68).found);
        _models->node(QStringLiteral("arm"))->setCollapsed(true);
        QCOMPARE(hitAt(_models->graph, 208, 68), Hit());
        _models->node(QStringLiteral("arm"))->setCollapsed(false);
        QVERIFY(hitAt(_models->graph, 208, 68).found);
    }

    void nodesAreHitWhereTheirCountsPutThem()
    {
        showThree();
        QVERIFY(hitAt(_models->graph, 208, 68).found);
        GV_UiNode* hand = _models->node(QStringLiteral("hand"));
        hand->setCounts(0, 5);
        QCOMPARE(hitAt(_models->graph, 208, 68), Hit());
        QCOMPARE(hitAt(_models->graph, 160, 170), (Hit{true, hand, 1, GV_UiNode::eNodeSelection}));
    }

    void rowsOfANodeThatWasReplacedAreForgotten()
    {
        showThree();
        QVERIFY(hitAt(_models->graph, 208, 68).found);
        MO_ElementModule* lone = _models->add(QStringLiteral("Lone"), chain(1));
        _models->show({lone}, lone);
        QCOMPARE(hitAt(_models->graph, 24, 34).node, _models->node(QStringLiteral("link0")));
        QCOMPARE(hitAt(_models->graph, 208, 68), Hit());
        _models->graph.clearUiNodeGraph();
        QCOMPARE(hitAt(_models->graph, 24, 34), Hit());
    }

    void shownRowsAreTheNodesThatAreNotFoldedAway()
    {
        showThree();
        QCOMPARE(_models->graph.shownRows().nodes(), preOrder(_models->header(1)));
        QVERIFY(_models->graph.shownRows().isInOrder());
        _models->node(QStringLiteral("arm"))->setCollapsed(true);
        QCOMPARE(_models->graph.shownRows().nodes().size(), std::size_t(2));
        _models->graph.clearUiNodeGraph();
        QVERIFY(_models->graph.shownRows().nodes().empty());
    }

    void modelsMayBeDeeperThanTheStack()
    {
        constexpr int links = 20000;
        _models->showOnly(QStringLiteral("Chain"), chain(links));
        const Hit hit = hitAt(_models->graph, links * 24 + 1.0, links * 34 + 1.0);
        QVERIFY(hit.found);
        QCOMPARE(hit.node->name(), QStringLiteral("link19999"));
        QCOMPARE(hit.part, static_cast<int>(GV_UiNode::eNodeSelection));
        _models->header(0)->setCollapsed(true);
        QVERIFY(!hitAt(_models->graph, links * 24 + 1.0, links * 34 + 1.0).found);
    }

    void anyPointHitsByThePlainRule_data()
    {
        QTest::addColumn<bool>("laidOut");
        QTest::newRow("after layout") << true;
        QTest::newRow("with flags that were set after layout") << false;
    }
    void anyPointHitsByThePlainRule()
    {
        QFETCH(bool, laidOut);
        for (quint32 seed = 0; seed < 40; ++seed) {
            QRandomGenerator random(seed);
            ShownModels models;
            std::vector<MO_ElementModule*> elements;
            for (int i = 1 + random.bounded(4); i > 0; --i)
                elements.push_back(models.add(QStringLiteral("m"), randomModel(seed, 120)));
            const int visible = random.bounded(int(elements.size()) + 1) - 1;
            models.show(elements, visible < 0 ? nullptr : elements.at(visible), seed % 2 == 0);
            for (int round = 0; round < 4; ++round) {
                foldAtRandom(random, models.graph.rootUiNode());
                if (laidOut)
                    models.graph.calculateGeometricData();
                for (int i = 0; i < 400; ++i) {
                    const double x = randomCoordinate(random, 160, int(elements.size()));
                    const double y = randomCoordinate(random, 34, 120);
                    QVERIFY(hitAt(models.graph, x, y) == plainHitAt(models.graph, x, y));
                }
            }
        }
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoHitTest)
#include "tst_GV_GraphUiInfoHitTest.moc"
