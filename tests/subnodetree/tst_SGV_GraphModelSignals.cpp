// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "subnodetree/SGV_GraphModel.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/subnodetree/RowsOf.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <utility>

using namespace ModelBuilder;

namespace {

CEL_SharedPtr<TD_CelVq3d> robot()
{
    return model(group("scene", {key("arm", {key("hand", {geometry("skin")}), key("pin")}),
                                 transform("base", {geometry("plate"), key("foot")})}));
}

} // namespace

class tst_SGV_GraphModelSignals : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void clear_announces_one_row_too_many_and_a_rebuild_does_twice()
    {
        const auto shown = robot();
        SGV_GraphModel model;
        QSignalSpy removing(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        QSignalSpy inserting(&model, &QAbstractItemModel::rowsAboutToBeInserted);
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        const auto expect = [&](int removals, int insertions) {
            for (QSignalSpy* spy : {&removing, &removed, &inserting, &inserted}) {
                const int last = spy == &removing || spy == &removed ? removals : insertions;
                if (last < 0) {
                    QCOMPARE(spy->count(), 0);
                    continue;
                }
                QCOMPARE(spy->count(), 1);
                const QVariantList range = spy->takeFirst();
                QVERIFY(!range.at(0).toModelIndex().isValid());
                QCOMPARE(range.at(1).toInt(), 0);
                QCOMPARE(range.at(2).toInt(), last);
            }
        };
        model.setRootNode(shown->rootNodePtr());
        expect(0, 2);
        model.setRootNode(shown->rootNodePtr());
        expect(2, 2);
        model.clear();
        expect(2, -1);
        model.clear();
        expect(0, -1);
        model.setRootNode(osg::NodePtr());
        expect(0, 0);
    }

    void rows_are_gone_and_come_at_the_announced_moments()
    {
        const auto shown = robot();
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        QList<int> counts;
        const auto note = [&] { counts << model.rowCount(); };
        connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, &model, note);
        connect(&model, &QAbstractItemModel::rowsRemoved, &model, note);
        connect(&model, &QAbstractItemModel::rowsAboutToBeInserted, &model, note);
        connect(&model, &QAbstractItemModel::rowsInserted, &model, note);
        model.setRootNode(shown->rootNodePtr());
        QCOMPARE(counts, (QList<int>{2, 0, 0, 2}));
    }

    void a_listener_that_shows_another_root_meanwhile_has_the_last_word()
    {
        const auto first = robot();
        const auto second = model(group("scene", {key("wheel"), key("axle", {key("nut")})}));
        SGV_GraphModel rows;
        rows.setRootNode(first->rootNodePtr());
        bool nested = false;
        connect(&rows, &QAbstractItemModel::rowsRemoved, &rows, [&] {
            if (!std::exchange(nested, true))
                rows.setRootNode(second->rootNodePtr());
        });
        rows.setRootNode(first->rootNodePtr());
        QVERIFY(rows.showsRootNode(second->rootNodePtr()));
        QCOMPARE(RowsOf::text(rows), QStringLiteral("wheel axle(nut)"));
        QCOMPARE(rows.items().size(), std::size_t(3));
        rows.setVisibilityData({{AT_ModelNodeKey(QStringLiteral("axle")), 1}});
        QVERIFY(rows.findIndex(AT_ModelNodeKey(QStringLiteral("nut"))).isValid());
        QVERIFY(!rows.findIndex(AT_ModelNodeKey(QStringLiteral("hand"))).isValid());
    }

    void annotations_tell_that_everything_changed()
    {
        const auto shown = robot();
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        const auto expectOne = [&](const QModelIndex& topLeft) {
            QCOMPARE(changed.count(), 1);
            const QVariantList range = changed.takeFirst();
            QCOMPARE(range.at(0).toModelIndex(), topLeft);
            QVERIFY(!range.at(1).toModelIndex().isValid());
        };
        model.setConnectionsData({});
        expectOne(model.index(0, 0));
        model.setVisibilityData({});
        expectOne(model.index(0, 0));
        model.clear();
        model.setConnectionsData({});
        expectOne(QModelIndex());
        model.setVisibilityData({});
        expectOne(QModelIndex());
    }

    // The tester watches filled models only. Of its checks, those of the ranges of insertions and
    // removals do not apply, as one row too many is announced on purpose, and those of the indexes
    // of dataChanged() neither, as an invalid one stands for everything.
    void filled_models_pass_the_general_checks_of_item_models()
    {
        for (quint32 seed = 0; seed < 6; ++seed) {
            const auto shown = randomModel(seed, 60);
            for (const bool debugMode : {false, true}) {
                SGV_GraphModel model;
                model.setDebugMode(debugMode);
                model.setRootNode(shown->rootNodePtr());
                const QAbstractItemModelTester tester(
                    &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
                QCOMPARE(tester.model(), &model);
                QCOMPARE(RowsOf::preOrder(model).size(), model.items().size());
            }
        }
    }
};

QTEST_MAIN(tst_SGV_GraphModelSignals)
#include "tst_SGV_GraphModelSignals.moc"
