// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/subnodetree/RowsOf.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QTreeView>

using namespace ModelBuilder;

namespace {

/// How many rows a filter must leave below an index, by plain recursion.
int keptRows(const QAbstractItemModel& model, const QString& filter,
             const QModelIndex& parent = QModelIndex())
{
    int kept = 0;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const int below = keptRows(model, filter, index);
        const QString name = index.data(SGV_GraphModel::SubnodeKeyRole).toString();
        kept += below + (below > 0 || name.contains(filter, Qt::CaseInsensitive) ? 1 : 0);
    }
    return kept;
}

int rowsShown(const QTreeView& view)
{
    int rows = 0;
    QModelIndex index = view.model()->index(0, 0);
    while (index.isValid()) {
        ++rows;
        index = view.indexBelow(index);
    }
    return rows;
}

} // namespace

class tst_filtered_tree_views : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void expanded_view_survives_random_changes_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 3; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    void expanded_view_survives_random_changes()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        SGV_GraphModel model;
        SubNodeFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        QTreeView view;
        view.setModel(&proxy);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QStringList texts{QString(),           QStringLiteral("part1"),
                                QStringLiteral("3"), QStringLiteral("PART"),
                                QStringLiteral("."), QStringLiteral("root")};
        QString filter;
        auto shown = randomModel(seed, 200);
        for (int change = 0; change < 100; ++change) {
            switch (random.bounded(6)) {
            case 0:
                shown = randomModel(random.generate(), 1 + random.bounded(300));
                model.setRootNode(shown->rootNodePtr());
                break;
            case 1:
                model.setDebugMode(!model.debugMode());
                model.setRootNode(shown->rootNodePtr());
                break;
            case 2:
                model.clear();
                break;
            case 3:
                model.setVisibilityData({{AT_ModelNodeKey(QStringLiteral("part3")), 1U}});
                model.setConnectionsData(
                    {{AT_ModelNodeKey(QStringLiteral("part1")), QStringLiteral("Motor")}});
                break;
            default:
                filter = texts.at(random.bounded(int(texts.size())));
                proxy.setFilterFixedString(filter);
                break;
            }
            if (random.bounded(4) != 0)
                view.expandAll();
            if (proxy.rowCount() > 0) {
                view.setCurrentIndex(proxy.index(proxy.rowCount() - 1, 0));
                view.selectAll();
            }
            QCoreApplication::processEvents();
            QCOMPARE(int(RowsOf::preOrder(proxy).size()), keptRows(model, filter));
            view.expandAll();
            QCOMPARE(rowsShown(view), keptRows(model, filter));
        }
    }

    void proxy_passes_the_general_checks_of_item_models_through_all_changes()
    {
        SGV_GraphModel model;
        SubNodeFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        const QAbstractItemModelTester tester(
            &proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (quint32 seed = 0; seed < 8; ++seed) {
            const auto shown = randomModel(seed, 40);
            model.setRootNode(shown->rootNodePtr());
            proxy.setFilterFixedString(QStringLiteral("part%1").arg(seed));
            model.setDebugMode(!model.debugMode());
            model.setRootNode(shown->rootNodePtr());
            QCOMPARE(int(RowsOf::preOrder(proxy).size()),
                     keptRows(model, QStringLiteral("part%1").arg(seed)));
            if (seed % 3 == 0)
                model.clear();
        }
    }

    void view_without_a_proxy_follows_rebuilds()
    {
        SGV_GraphModel model;
        QTreeView view;
        view.setModel(&model);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        for (quint32 seed = 0; seed < 10; ++seed) {
            const auto shown = randomModel(seed, 100);
            model.setDebugMode(seed % 2 == 0);
            model.setRootNode(shown->rootNodePtr());
            view.expandAll();
            QCoreApplication::processEvents();
            QCOMPARE(rowsShown(view), int(model.items().size()));
            model.clear();
            QCoreApplication::processEvents();
            QCOMPARE(rowsShown(view), 0);
        }
    }
};

QTEST_MAIN(tst_filtered_tree_views)
#include "tst_filtered_tree_views.moc"
