// SPDX-License-Identifier: MIT

#include "host/models/TD_CelVq3d.h"
#include "subnodetree/SGV_GraphModel.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/subnodetree/RowsOf.h"

#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

AT_ModelNodeKey keyOf(const char* name)
{
    return AT_ModelNodeKey(QString::fromUtf8(name));
}

/// A model together with what it shows.
struct Shown
{
    explicit Shown(const CEL_SharedPtr<TD_CelVq3d>& shownCel, bool debugMode = false)
        : cel(shownCel)
    {
        model.setDebugMode(debugMode);
        model.setRootNode(cel->rootNodePtr());
    }
    explicit Shown(const Part& root, bool debugMode = false)
        : Shown(ModelBuilder::model(root), debugMode)
    {
    }

    QModelIndex find(const char* name) const { return model.findIndex(keyOf(name)); }

    CEL_SharedPtr<TD_CelVq3d> cel;
    SGV_GraphModel model;
};

Part robot()
{
    return group("scene", {key("arm", {key("hand", {geometry("skin")}), key("pin")}),
                           transform("base", {geometry("plate"), key("foot")})});
}

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
        const Shown shown(robot());
        QCOMPARE(shown.find("pin").data().toString(), QStringLiteral("pin"));
        QVERIFY(!shown.find("Pin").isValid());
        QVERIFY(!shown.find("scene").isValid());
        QVERIFY(!shown.model.findIndex(keyOf("arm"), shown.find("foot")).isValid());
        QCOMPARE(shown.model.findIndex(keyOf("arm"), shown.find("arm")), shown.find("arm"));
        QVERIFY(!SGV_GraphModel().findIndex(keyOf("arm")).isValid());
    }

    void empty_key_stands_for_the_start_at_the_top()
    {
        const Shown shown(key("a", {key("")}));
        QVERIFY(!shown.model.findIndex(AT_ModelNodeKey()).isValid());
        const QModelIndex a = shown.model.index(0, 0);
        QCOMPARE(shown.model.findIndex(AT_ModelNodeKey(), a), shown.model.index(0, 0, a));
    }

    void searches_see_the_rows_of_the_last_rebuild()
    {
        Shown shown(robot());
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
            const Shown shown(randomModel(seed, 80), seed % 2 == 0);
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
