// SPDX-License-Identifier: MIT

#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

QByteArray text(const Math::Rect2d& rect)
{
    return QStringLiteral("(%1, %2, %3, %4)")
        .arg(rect.left)
        .arg(rect.top)
        .arg(rect.right)
        .arg(rect.bottom)
        .toLatin1();
}

} // namespace

class tst_GV_GraphUiInfoSelectionRect : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ShownModels> _models;
    std::vector<MO_ElementModule*> _elements;

    /// Five models, each Robot(a(b(c d)) e): a on row 1, b on row 2, and so on. One is open, or
    /// with -1 none.
    void showFive(int visible)
    {
        const auto shown = model(group(
            "g", {key("a", {key("b", {key("c", {geometry("s")}), key("d", {geometry("s")})})}),
                  key("e", {geometry("s")})}));
        for (int i = 0; i < 5; ++i)
            _elements.push_back(_models->add(QStringLiteral("Robot%1").arg(i), shown));
        _models->show(_elements, visible < 0 ? nullptr : _elements.at(visible));
    }

    void select(const std::vector<int>& headers, const char* names = "")
    {
        for (const int ix : headers)
            QVERIFY(_models->graph.setHeaderNodeSelected(_elements.at(ix)));
        for (const char* name = names; *name; ++name)
            QVERIFY(_models->graph.setFirstNodeWithNameSelected(QString(QLatin1Char(*name))));
    }

    QByteArray rect() { return text(_models->graph.selectionRect()); }

private slots:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
    }

    void cleanup()
    {
        _models.reset();
        _elements.clear();
    }

    void rectEnclosesTheSelection_data()
    {
        QTest::addColumn<int>("visible");
        QTest::addColumn<std::vector<int>>("headers");
        QTest::addColumn<QByteArray>("names");
        QTest::addColumn<QByteArray>("rect");
        const auto row = [](const char* title, int visible, const std::vector<int>& headers,
                            const char* names, const char* rect) {
            QTest::newRow(title) << visible << headers << QByteArray(names) << QByteArray(rect);
        };
        row("nothing", 1, {}, "", "(0, 0, 0, 0)");
        row("header without open tree", -1, {2}, "", "(320, 0, 455, 23)");
        row("header left of the open tree", 3, {2}, "", "(320, 0, 615, 23)");
        row("header right of the open tree", 0, {2}, "", "(320, 0, 455, 23)");
        row("header of the open tree", 2, {2}, "", "(320, 0, 455, 23)");
        row("several headers", -1, {1, 3, 2}, "", "(160, 0, 615, 23)");
        row("first and last header", 1, {0, 4}, "", "(0, 0, 775, 23)");
        row("header and nodes of its tree", 1, {1}, "bcd", "(160, 68, 367, 159)");
        row("header and the first row", 1, {1}, "a", "(160, 34, 319, 57)");
        row("header of another model and nodes", 1, {4}, "cd", "(640, 102, 775, 159)");
        row("header left of the nodes", 3, {0}, "c", "(0, 102, 687, 125)");
        row("several headers and nodes", 1, {0, 1}, "bcd", "(0, 0, 367, 159)");
        row("nodes alone", 0, {}, "ab", "(-160, 0, 183, 91)");
        row("one node alone", 0, {}, "a", "(-160, 0, 159, 57)");
        row("nodes alone, far right", 4, {}, "be", "(-160, 0, 823, 193)");
    }
    void rectEnclosesTheSelection()
    {
        QFETCH(int, visible);
        QFETCH(std::vector<int>, headers);
        QFETCH(QByteArray, names);
        showFive(visible);
        select(headers, names.constData());
        QTEST(rect(), "rect");
    }

    void nodesAloneOnTheFirstColumnReachTheHeaderRow()
    {
        _models->showOnly(QStringLiteral("Robot"), model(group("g", {key("a", {geometry("s")}),
                                                                     key("b", {geometry("s")})})));
        select({}, "ab");
        QCOMPARE(rect(), QByteArray("(-160, 0, 159, 91)"));
    }

    void foldedNodesTakePartWithTheirNegativeCounts()
    {
        showFive(0);
        select({}, "cd");
        _models->node(QStringLiteral("a"))->setCollapsed(true);
        _models->graph.calculateGeometricData();
        QCOMPARE(rect(), QByteArray("(-160, 0, 135, 23)"));
        select({0});
        QCOMPARE(rect(), QByteArray("(0, 0, 135, 23)"));
        select({}, "e");
        QCOMPARE(rect(), QByteArray("(0, -34, 159, 91)"));
    }

    void foldedNodesNarrowTheRectOfATreeFarRight()
    {
        showFive(2);
        select({}, "cd");
        _models->node(QStringLiteral("a"))->setCollapsed(true);
        _models->graph.calculateGeometricData();
        QCOMPARE(rect(), QByteArray("(-160, 0, 431, 23)"));
    }

    void nodesOfATreeThatWasClosedKeepTheirPlace()
    {
        showFive(2);
        select({}, "bc");
        _models->show(_elements, nullptr);
        QCOMPARE(rect(), QByteArray("(-160, 0, 135, 125)"));
    }

    void keysWithoutANodeTakeNoPart()
    {
        showFive(1);
        select({0}, "bc");
        _models->show({_elements.at(1)}, _elements.at(1), true);
        _models->graph.clearUiNodeGraph();
        QCOMPARE(_models->graph.selectedNodes().size(), std::size_t(3));
        QCOMPARE(rect(), QByteArray("(0, 0, 0, 0)"));
    }

    void headersThatAreNotShownTakeNoPart()
    {
        showFive(1);
        const GV_UiHeaderNode stranger(QStringLiteral("Stranger"), QString(), osg::NodePtr(), {},
                                       true);
        _models->graph.selectedNodes()[GV_UiNodeKey(&stranger)] = &stranger;
        QCOMPARE(rect(), QByteArray("(0, 0, 0, 0)"));
        select({}, "a");
        QCOMPARE(rect(), QByteArray("(-160, 0, 319, 57)"));
    }
};

QTEST_MAIN(tst_GV_GraphUiInfoSelectionRect)
#include "tst_GV_GraphUiInfoSelectionRect.moc"
