// SPDX-License-Identifier: MIT

#include "tests/subnodetree/Filtered.h"

#include <QRegularExpression>
#include <QTest>
#include <optional>

using namespace ModelBuilder;

namespace {

/// Accepts rows of one name whatever the filter, and notes which rows it is asked for.
class Asked : public SubNodeFilterProxyModel
{
public:
    QString always;
    mutable QStringList names;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const QModelIndex index = sourceModel()->index(row, 0, parent);
        const QString name = index.data(SGV_GraphModel::SubnodeKeyRole).toString();
        names << name;
        return (!always.isEmpty() && name == always) ||
               SubNodeFilterProxyModel::filterAcceptsRow(row, parent);
    }
};

} // namespace

class tst_SubNodeFilterProxyModelSources : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void source_can_be_changed_under_a_filter()
    {
        Filtered first(limbs());
        Filtered second(key("b", {key("arm"), key("c")}));
        first.filter(QStringLiteral("arm"));
        first.proxy.setSourceModel(&second.model);
        QCOMPARE(RowsOf::text(first.proxy), QStringLiteral("b(arm)"));
        first.proxy.setSourceModel(&first.model);
        QCOMPARE(RowsOf::text(first.proxy), QStringLiteral("Body(LeftArm RightArm)"));
    }

    void new_source_in_the_place_of_a_destroyed_one_is_filtered_anew()
    {
        SubNodeFilterProxyModel proxy;
        std::optional<SGV_GraphModel> source;
        const auto filteredRows = [&](const Part& root) {
            const auto shown = model(root);
            source.emplace();
            source->setRootNode(shown->rootNodePtr());
            proxy.setSourceModel(&*source);
            const QString rows = RowsOf::text(proxy);
            source.reset();
            return rows;
        };
        proxy.setFilterFixedString(QStringLiteral("arm"));
        QCOMPARE(filteredRows(key("arm", {key("a")})), QStringLiteral("arm"));
        QCOMPARE(filteredRows(key("x", {key("arm")})), QStringLiteral("x(arm)"));
    }

    void subclass_is_asked_for_each_child()
    {
        const auto shown = model(limbs());
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        Asked proxy;
        proxy.setSourceModel(&model);
        proxy.setFilterFixedString(QStringLiteral("rightarm"));
        proxy.names.clear();
        QCOMPARE(proxy.rowCount(), 1);
        QCOMPARE(proxy.names,
                 QStringLiteral("Body LeftArm Hand Pin Leg Foot RightArm").split(u' '));
        proxy.setFilterFixedString(QStringLiteral("hand"));
        proxy.names.clear();
        QCOMPARE(proxy.rowCount(), 1);
        QCOMPARE(proxy.names, QStringLiteral("Body LeftArm Hand").split(u' '));
    }

    void rows_that_a_subclass_accepts_are_led_to()
    {
        const auto shown = model(limbs());
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        Asked proxy;
        proxy.always = QStringLiteral("Foot");
        proxy.setSourceModel(&model);
        proxy.setFilterFixedString(QStringLiteral("pin"));
        QCOMPARE(RowsOf::text(proxy), QStringLiteral("Body(LeftArm(Pin) Leg(Foot))"));
    }
};

QTEST_MAIN(tst_SubNodeFilterProxyModelSources)
#include "tst_SubNodeFilterProxyModelSources.moc"
