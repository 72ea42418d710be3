// SPDX-License-Identifier: MIT

#include "tests/subnodetree/Filtered.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

using namespace ModelBuilder;

namespace {

/// What must be left of a model's rows, by plain recursion, in the form of RowsOf::texts().
QStringList keptRows(const QAbstractItemModel& model, const QString& filter,
                     const QModelIndex& parent = QModelIndex())
{
    QStringList kept;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QStringList below = keptRows(model, filter, index);
        const QString name = index.data(SGV_GraphModel::SubnodeKeyRole).toString();
        const QString text = index.data().toString();
        if (!below.isEmpty())
            kept << text + u'(' + below.join(u' ') + u')';
        else if (name.contains(filter, Qt::CaseInsensitive))
            kept << text;
    }
    return kept;
}

const std::vector<std::string>& nameStock()
{
    static const std::vector<std::string> names{"LeftArm",
                                                "RIGHTARM",
                                                "leg",
                                                "a.b",
                                                "axb",
                                                "a*",
                                                "[x]",
                                                "(",
                                                "x|y",
                                                "^top",
                                                "end$",
                                                "back\\slash",
                                                "",
                                                "\xc3\x84rmel",
                                                "\xc3\xa4rmel",
                                                "Stra\xc3\x9f"
                                                "e",
                                                "\xe2\x84\xaa"
                                                "elvin",
                                                "kelvin",
                                                "\xe6\x89\x8b",
                                                "two words",
                                                "%1",
                                                "part12"};
    return names;
}

QStringList filters()
{
    return {QString(),
            QStringLiteral("arm"),
            QStringLiteral("ARM"),
            QStringLiteral("."),
            QStringLiteral(".*"),
            QStringLiteral("a.b"),
            QStringLiteral("*"),
            QStringLiteral("["),
            QStringLiteral("[X]"),
            QStringLiteral("("),
            QStringLiteral("|"),
            QStringLiteral("^"),
            QStringLiteral("$"),
            QStringLiteral("\\"),
            QStringLiteral("\\E"),
            QStringLiteral(" "),
            QStringLiteral("\u00c4"),
            QStringLiteral("\u00e4RM"),
            QStringLiteral("\u00df"),
            QStringLiteral("k"),
            QStringLiteral("\u624b"),
            QStringLiteral("nothing like it"),
            QStringLiteral("%1"),
            QStringLiteral("tO w")};
}

/// A random model with names that filters find hard.
CEL_SharedPtr<TD_CelVq3d> oddlyNamedModel(quint32 seed, int nodes)
{
    const auto cel = randomModel(seed, nodes);
    QRandomGenerator random(seed);
    std::vector<osg::NodePtr> pending{cel->rootNodePtr()};
    while (!pending.empty()) {
        const osg::NodePtr node = pending.back();
        pending.pop_back();
        const auto choice = random.bounded(quint32(nameStock().size()));
        osg::setName(node, nameStock().at(choice));
        for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
            pending.push_back(node->getChild(i));
    }
    return cel;
}

struct OpenProxy : SubNodeFilterProxyModel
{
    using SubNodeFilterProxyModel::filterAcceptsRow;
};

} // namespace

class tst_SubNodeFilterProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void empty_filter_shows_every_row()
    {
        Filtered filtered(limbs());
        const QString all = QStringLiteral("Body(LeftArm(Hand Pin) Leg(Foot) RightArm)");
        QCOMPARE(RowsOf::text(filtered.proxy), all);
        QCOMPARE(filtered.filter(QStringLiteral("none")), QString());
        QCOMPARE(filtered.proxy.rowCount(), 0);
        QCOMPARE(filtered.filter(QString()), all);
    }

    void match_is_shown_with_all_that_lead_to_it_and_nothing_else()
    {
        Filtered filtered(limbs());
        QCOMPARE(filtered.filter(QStringLiteral("arm")), QStringLiteral("Body(LeftArm RightArm)"));
        QCOMPARE(filtered.filter(QStringLiteral("FOOT")), QStringLiteral("Body(Leg(Foot))"));
        QCOMPARE(filtered.filter(QStringLiteral("in")), QStringLiteral("Body(LeftArm(Pin))"));
        QCOMPARE(filtered.filter(QStringLiteral("body")), QStringLiteral("Body"));
    }

    void mark_of_a_connection_is_no_part_of_the_name()
    {
        Filtered filtered(key("a", {key("b"), key("c*")}));
        filtered.model.setConnectionsData(
            {{AT_ModelNodeKey(QStringLiteral("b")), QStringLiteral("Motor")}});
        QCOMPARE(filtered.filter(QString()), QStringLiteral("a(b* c*)"));
        QCOMPARE(filtered.filter(QStringLiteral("*")), QStringLiteral("a(c*)"));
        QCOMPARE(filtered.filter(QStringLiteral("b*")), QString());
        QCOMPARE(filtered.filter(QStringLiteral("b")), QStringLiteral("a(b*)"));
    }

    void rows_of_debug_mode_are_filtered_by_their_names_too()
    {
        Filtered filtered;
        filtered.model.setDebugMode(true);
        filtered.show(model(group("scene", {key("arm", {geometry("skin")}), transform("base")})));
        QCOMPARE(filtered.filter(QStringLiteral("SKIN")), QStringLiteral("scene(arm(skin))"));
        QCOMPARE(filtered.filter(QStringLiteral("base")), QStringLiteral("scene(base)"));
    }

    void own_case_sensitivity_of_the_proxy_stays_and_makes_no_difference()
    {
        Filtered filtered(limbs());
        for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
            filtered.proxy.setFilterCaseSensitivity(sensitivity);
            QCOMPARE(filtered.filter(QStringLiteral("fOOt")), QStringLiteral("Body(Leg(Foot))"));
            QCOMPARE(filtered.proxy.filterCaseSensitivity(), sensitivity);
        }
    }

    void filter_may_also_be_set_as_an_expression_or_by_the_base_class()
    {
        Filtered filtered(limbs());
        filtered.filter(QStringLiteral("pin"));
        filtered.proxy.setFilterRegularExpression(QStringLiteral("^(foot|hand)$"));
        QCOMPARE(RowsOf::text(filtered.proxy), QStringLiteral("Body(LeftArm(Hand) Leg(Foot))"));
        QSortFilterProxyModel& base = filtered.proxy;
        base.setFilterFixedString(QStringLiteral("LEG"));
        QCOMPARE(RowsOf::text(filtered.proxy), QStringLiteral("Body(Leg)"));
        QCOMPARE(filtered.filter(QStringLiteral("pin")), QStringLiteral("Body(LeftArm(Pin))"));
    }

    void change_of_the_filter_is_one_reset()
    {
        Filtered filtered(limbs());
        QSignalSpy resetting(&filtered.proxy, &QAbstractItemModel::modelAboutToBeReset);
        QSignalSpy reset(&filtered.proxy, &QAbstractItemModel::modelReset);
        QSignalSpy removed(&filtered.proxy, &QAbstractItemModel::rowsRemoved);
        QSignalSpy inserted(&filtered.proxy, &QAbstractItemModel::rowsInserted);
        filtered.filter(QStringLiteral("arm"));
        QCOMPARE(resetting.count(), 1);
        QCOMPARE(reset.count(), 1);
        QCOMPARE(removed.count() + inserted.count(), 0);
    }

    void row_that_does_not_exist_is_rejected()
    {
        const auto shown = model(limbs());
        SGV_GraphModel model;
        model.setRootNode(shown->rootNodePtr());
        OpenProxy proxy;
        QVERIFY(!proxy.filterAcceptsRow(0, QModelIndex()));
        proxy.setSourceModel(&model);
        QVERIFY(proxy.filterAcceptsRow(0, QModelIndex()));
        QVERIFY(!proxy.filterAcceptsRow(1, QModelIndex()));
        QVERIFY(!proxy.filterAcceptsRow(-1, QModelIndex()));
        proxy.setFilterFixedString(QStringLiteral("o"));
        QVERIFY(proxy.filterAcceptsRow(0, QModelIndex()));
        QVERIFY(!proxy.filterAcceptsRow(1, QModelIndex()));
    }

    void any_filter_leaves_the_rows_of_the_plain_rule_data()
    {
        QTest::addColumn<int>("nodes");
        QTest::addColumn<int>("models");
        QTest::newRow("small") << 12 << 20;
        QTest::newRow("medium") << 150 << 6;
        QTest::newRow("large") << 3000 << 1;
    }
    void any_filter_leaves_the_rows_of_the_plain_rule()
    {
        QFETCH(int, nodes);
        QFETCH(int, models);
        for (int seed = 0; seed < models; ++seed) {
            const auto shown = oddlyNamedModel(quint32(seed) + 7, nodes);
            Filtered filtered;
            filtered.model.setDebugMode(seed % 2 == 0);
            filtered.show(shown);
            for (const QString& text : filters())
                QCOMPARE(filtered.filter(text), keptRows(filtered.model, text).join(u' '));
        }
    }

    void rebuilds_keep_the_filter()
    {
        Filtered filtered;
        QCOMPARE(filtered.filter(QStringLiteral("arm")), QString());
        filtered.show(model(limbs()));
        QCOMPARE(RowsOf::text(filtered.proxy), QStringLiteral("Body(LeftArm RightArm)"));
        filtered.show(model(group("g", {key("Pin"), key("ARM"), key("x", {key("arms")})})));
        QCOMPARE(RowsOf::text(filtered.proxy), QStringLiteral("ARM x(arms)"));
        filtered.model.clear();
        QCOMPARE(filtered.proxy.rowCount(), 0);
        filtered.show(model(key("other")));
        QCOMPARE(filtered.proxy.rowCount(), 0);
        QCOMPARE(filtered.filter(QString()), QStringLiteral("other"));
        filtered.model.setRootNode(osg::NodePtr());
        QCOMPARE(filtered.proxy.rowCount(), 0);
    }

    void models_of_other_types_are_filtered_as_well()
    {
        QStandardItemModel model;
        const auto add = [](QStandardItem* parent, const QString& name) {
            auto* item = new QStandardItem(name);
            item->setData(name, SGV_GraphModel::SubnodeKeyRole);
            parent->appendRow(item);
            return item;
        };
        for (const char16_t* name : {u"Body", u"Base"}) {
            QStandardItem* top = add(model.invisibleRootItem(), QString::fromUtf16(name));
            for (const std::string& below : nameStock())
                add(add(top, QStringLiteral("mid")), QString::fromStdString(below));
        }
        SubNodeFilterProxyModel proxy;
        proxy.setSourceModel(&model);
        for (const QString& text : filters()) {
            proxy.setFilterFixedString(text);
            QCOMPARE(RowsOf::text(proxy), keptRows(model, text).join(u' '));
        }
    }
};

QTEST_MAIN(tst_SubNodeFilterProxyModel)
#include "tst_SubNodeFilterProxyModel.moc"
