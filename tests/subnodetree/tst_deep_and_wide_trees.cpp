// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/subnodetree/RowsOf.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>
#include <QTreeView>

using namespace ModelBuilder;

namespace {

CEL_SharedPtr<TD_CelVq3d> flatModel(int nodes)
{
    Parts parts;
    parts.reserve(static_cast<std::size_t>(nodes));
    for (int i = 0; i < nodes; ++i)
        parts.push_back(key("part" + std::to_string(i)));
    return model(group("all", parts));
}

/// A view on a proxy on a model.
struct Stage
{
    explicit Stage(const CEL_SharedPtr<TD_CelVq3d>& cel)
        : shown(cel)
    {
        proxy.setSourceModel(&model);
        view.setModel(&proxy);
        view.setUniformRowHeights(true);
        view.show();
    }

    CEL_SharedPtr<TD_CelVq3d> shown;
    SGV_GraphModel model;
    SubNodeFilterProxyModel proxy;
    QTreeView view;
};

QModelIndex deepest(const QAbstractItemModel& model)
{
    QModelIndex index = model.index(0, 0);
    while (model.rowCount(index) > 0)
        index = model.index(0, 0, index);
    return index;
}

int depthOf(QModelIndex index)
{
    int depth = 0;
    for (; index.isValid(); index = index.parent())
        ++depth;
    return depth;
}

} // namespace

class tst_deep_and_wide_trees : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void model_of_a_chain()
    {
        constexpr int links = 20000;
        const auto shown = chain(links);
        SGV_GraphModel model;
        for (const bool debugMode : {false, true}) {
            model.setDebugMode(debugMode);
            model.setRootNode(shown->rootNodePtr());
            QCOMPARE(int(model.items().size()), links + (debugMode ? 1 : 0));
            QCOMPARE(depthOf(deepest(model)), links + (debugMode ? 1 : 0));
        }
        const AT_ModelNodeKey last(QStringLiteral("link19999"));
        QCOMPARE(depthOf(model.findIndex(last)), links);
        QCOMPARE(model.findIndex(last, model.index(0, 0)), model.findIndex(last));
        model.setVisibilityData({{AT_ModelNodeKey(QStringLiteral("link0")), 1U}});
        QVERIFY(model.items().back()->isAncestorDisabled());
        model.clear();
        QVERIFY(model.isEmpty());
    }

    void model_of_a_flat_tree()
    {
        constexpr int nodes = 100000;
        const auto shown = flatModel(nodes);
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        QCOMPARE(model.rowCount(), nodes);
        QElapsedTimer timer;
        timer.start();
        // Each of these would take minutes if it searched all rows.
        int wrong = 0;
        for (int row = 0; row < nodes; ++row) {
            const AT_ModelNodeKey key(QStringLiteral("part%1").arg(row));
            wrong += model.findIndex(key).row() != row;
        }
        QCOMPARE(wrong, 0);
        model.clear();
        QVERIFY(model.isEmpty());
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    }

    void proxy_on_a_chain()
    {
        constexpr int links = 20000;
        const auto shown = chain(links);
        SGV_GraphModel model;
        SubNodeFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        model.setRootNode(shown->rootNodePtr());
        QCOMPARE(depthOf(deepest(proxy)), links);
        proxy.setFilterFixedString(QStringLiteral("LINK15000"));
        QCOMPARE(depthOf(deepest(proxy)), 15001);
        proxy.setFilterFixedString(QStringLiteral("no such link"));
        QCOMPARE(proxy.rowCount(), 0);
        proxy.setFilterFixedString(QString());
        QCOMPARE(depthOf(deepest(proxy)), links);
        model.clear();
        QCOMPARE(proxy.rowCount(), 0);
        proxy.setFilterFixedString(QStringLiteral("link1"));
        model.setRootNode(shown->rootNodePtr());
        QCOMPARE(depthOf(deepest(proxy)), links);
    }

    void proxy_on_a_flat_tree()
    {
        constexpr int nodes = 100000;
        const auto shown = flatModel(nodes);
        SGV_GraphModel model;
        SubNodeFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        QElapsedTimer timer;
        timer.start();
        model.setRootNode(shown->rootNodePtr());
        QCOMPARE(proxy.rowCount(), nodes);
        proxy.setFilterFixedString(QStringLiteral("PART9999"));
        QCOMPARE(proxy.rowCount(), 11);
        proxy.setFilterFixedString(QStringLiteral("part"));
        QCOMPARE(proxy.rowCount(), nodes);
        model.clear();
        QCOMPARE(proxy.rowCount(), 0);
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    }

    void view_of_a_chain()
    {
        // The view expands recursively; a stack of 8 MB bears somewhat more than 25000 levels.
        constexpr int links = 20000;
        Stage stage(chain(links));
        QVERIFY(QTest::qWaitForWindowExposed(&stage.view));
        stage.model.setRootNode(stage.shown->rootNodePtr());
        stage.view.expandAll();
        QCoreApplication::processEvents();
        QVERIFY(stage.view.isExpanded(deepest(stage.proxy).parent()));
        // Removing what is expanded takes Qt a time that is quadratic in its depth.
        stage.proxy.setFilterFixedString(QStringLiteral("link29"));
        stage.view.expandAll();
        QCoreApplication::processEvents();
        QCOMPARE(depthOf(deepest(stage.proxy)), 3000);
        stage.model.clear();
        QCoreApplication::processEvents();
        QVERIFY(!stage.view.indexAt(QPoint(5, 5)).isValid());
    }

    void view_of_a_flat_tree()
    {
        constexpr int nodes = 100000;
        QElapsedTimer timer;
        timer.start();
        Stage stage(flatModel(nodes));
        QVERIFY(QTest::qWaitForWindowExposed(&stage.view));
        stage.model.setRootNode(stage.shown->rootNodePtr());
        stage.view.expandAll();
        QCoreApplication::processEvents();
        QCOMPARE(stage.view.indexAt(QPoint(5, 5)), stage.proxy.index(0, 0));
        QVERIFY(stage.view.visualRect(stage.proxy.index(nodes - 1, 0)).isValid());
        stage.proxy.setFilterFixedString(QStringLiteral("part9999"));
        stage.view.expandAll();
        QCoreApplication::processEvents();
        QCOMPARE(stage.view.indexAt(QPoint(5, 5)).data().toString(), QStringLiteral("part9999"));
        stage.proxy.setFilterFixedString(QString());
        stage.view.expandAll();
        QCoreApplication::processEvents();
        stage.model.clear();
        QCoreApplication::processEvents();
        QVERIFY(!stage.view.indexAt(QPoint(5, 5)).isValid());
        QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_MAIN(tst_deep_and_wide_trees)
#include "tst_deep_and_wide_trees.moc"
