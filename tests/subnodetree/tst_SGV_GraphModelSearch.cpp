// SPDX-License-Identifier: MIT

#include "tests/subnodetree/RowsOf.h"
#include "tests/subnodetree/ShownModel.h"

#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

/// The search by its plain rule.
QModelIndex plainFind(const SGV_GraphModel& model, const QString& name, const QModelIndex& start)
{
    if (start.data(SGV_GraphModel::SubnodeKeyRole).toString() == name)
        return start;
    for (int row = 0; row < model.rowCount(start); ++row) {
        const QModelIndex found = plainFind(model, name, model.index(row, 0, start));
        if (found.isValid())
            return found;
    }
    return {};
}

} // namespace

class tst_SGV_GraphModelSearch : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void index_is_found_by_key()
    {
        const ShownModel shown(armAndBase());
        QCOMPARE(shown.find("pin").data().toString(), QStringLiteral("pin"));
        QVERIFY(!shown.find("Pin").isValid());
        QVERIFY(!shown.find("scene").isValid());
        QVERIFY(!shown.model.findIndex(keyOf("arm"), shown.find("foot")).isValid());
        QCOMPARE(shown.model.findIndex(keyOf("arm"), shown.find("arm")), shown.find("arm"));
        QVERIFY(!SGV_GraphModel().findIndex(keyOf("arm")).isValid());
    }

    void empty_key_stands_for_the_start_at_the_top()
    {
        const ShownModel shown(key("a", {key("")}));
        QVERIFY(!shown.model.findIndex(AT_ModelNodeKey()).isValid());
        const QModelIndex a = shown.model.index(0, 0);
        QCOMPARE(shown.model.findIndex(AT_ModelNodeKey(), a), shown.model.index(0, 0, a));
    }

    void searches_see_the_rows_of_the_last_rebuild()
    {
        ShownModel shown(armAndBase());
        QVERIFY(shown.find("arm").isValid());
        const auto next = model(key("other"));
        shown.model.setRootNode(next->rootNodePtr());
        QVERIFY(!shown.find("arm").isValid());
        QCOMPARE(shown.find("other"), shown.model.index(0, 0));
        shown.model.clear();
        QVERIFY(!shown.find("other").isValid());
    }

    void any_search_finds_what_the_plain_rule_finds()
    {
        for (quint32 seed = 0; seed < 20; ++seed) {
            const ShownModel shown(randomModel(seed, 80), seed % 2 == 0);
            std::vector<QModelIndex> starts = RowsOf::preOrder(shown.model);
            starts.emplace_back();
            QStringList names{QString(), QStringLiteral("root"), QStringLiteral("none")};
            for (int part = 0; part < 12; ++part)
                names << QStringLiteral("part%1").arg(part);
            for (const QModelIndex& start : starts) {
                for (const QString& name : names) {
                    QCOMPARE(shown.model.findIndex(AT_ModelNodeKey(name), start),
                             plainFind(shown.model, name, start));
                }
            }
        }
    }
};

QTEST_MAIN(tst_SGV_GraphModelSearch)
#include "tst_SGV_GraphModelSearch.moc"
