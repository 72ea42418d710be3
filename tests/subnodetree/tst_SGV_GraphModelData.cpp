// SPDX-License-Identifier: MIT

#include "tests/subnodetree/RowsOf.h"
#include "tests/subnodetree/ShownModel.h"

#include <QIcon>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

constexpr int propertiesRole = 33;
constexpr int keyRole = 34;

/// What every row's state must be, by the plain rule.
void compareStates(const SGV_GraphModel& model, const QModelIndex& parent,
                   const SGV_GraphModel::VisibilityData& data, bool inherited)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const auto* item = static_cast<const SGV_GraphItem*>(index.internalPointer());
        const auto it = data.find(AT_ModelNodeKey(item->name()));
        const quint32 state = it == data.end() ? 0 : it->second;
        QCOMPARE(item->visibilityState(), state);
        QCOMPARE(item->isAncestorDisabled(), inherited);
        compareStates(model, index, data, inherited || (state & 1U));
    }
}

} // namespace

class tst_SGV_GraphModelData : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void properties_are_known_to_qt_by_name_once_used()
    {
        const ShownModel shown(armAndBase());
        const auto given = shown.data("arm", propertiesRole).value<SGV_GraphModelIndexProperties>();
        QCOMPARE(given.name, QStringLiteral("arm"));
        QVERIFY(given.detail.isEmpty());
        const QMetaType type = QMetaType::fromName("SGV_GraphModelIndexProperties");
        QVERIFY(type.isValid());
        QCOMPARE(type, shown.data("arm", propertiesRole).metaType());
        auto* made = static_cast<SGV_GraphModelIndexProperties*>(type.create());
        QCOMPARE(made->name, QStringLiteral("No name"));
        QVERIFY(made->detail.isEmpty());
        type.destroy(made);
        auto* copied = static_cast<SGV_GraphModelIndexProperties*>(type.create(&given));
        QVERIFY(*copied == given);
        type.destroy(copied);
    }

    void roles_have_fixed_numbers()
    {
        QCOMPARE(int(SGV_GraphModel::SubnodePropertiesRole), propertiesRole);
        QCOMPARE(int(SGV_GraphModel::SubnodeKeyRole), keyRole);
        ShownModel shown(armAndBase());
        shown.model.setConnectionsData({{keyOf("arm"), QStringLiteral("Motor")}});
        QCOMPARE(shown.data("arm", 0), QVariant(QStringLiteral("arm*")));
        QVERIFY(!shown.data("arm", 1).value<QIcon>().isNull());
        QCOMPARE(shown.data("arm", 2), QVariant(QStringLiteral("arm*")));
        QCOMPARE(shown.data("arm", 3), QVariant(QStringLiteral("Connected to Motor")));
        QCOMPARE(shown.data("arm", 9).typeId(), int(QMetaType::QColor));
        QCOMPARE(shown.data("arm", keyRole), QVariant(QStringLiteral("arm")));
    }

    void other_roles_have_no_value()
    {
        ShownModel shown(armAndBase());
        shown.model.setConnectionsData({{keyOf("arm"), QStringLiteral("Motor")}});
        for (int role = -1; role < 400; ++role) {
            const bool known = QList<int>{0, 1, 2, 3, 9, propertiesRole, keyRole}.contains(role);
            QCOMPARE(shown.data("arm", role).isValid(), known);
        }
    }

    void invalid_index_has_no_value()
    {
        const ShownModel shown(armAndBase());
        for (const int role : {0, 1, 2, 3, 9, propertiesRole, keyRole})
            QVERIFY(!shown.model.data(QModelIndex(), role).isValid());
    }

    void header_has_no_value()
    {
        const ShownModel shown(armAndBase());
        for (int role = 0; role < 20; ++role) {
            QVERIFY(!shown.model.headerData(0, Qt::Horizontal, role).isValid());
            QVERIFY(!shown.model.headerData(0, Qt::Vertical, role).isValid());
        }
    }

    void key_nodes_alone_can_be_selected()
    {
        const ShownModel shown(armAndBase(), true);
        for (const char* name : {"arm", "hand", "pin", "foot"})
            QCOMPARE(int(shown.model.flags(shown.find(name))), 33);
        for (const char* name : {"scene", "skin", "base", "plate"})
            QCOMPARE(int(shown.model.flags(shown.find(name))), 0);
        QCOMPARE(int(shown.model.flags(QModelIndex())), 0);
    }

    void kinds_outside_debug_mode()
    {
        const ShownModel shown(armAndBase());
        QCOMPARE(shown.item("arm")->kindFlags(), 2U + 4U);
        QCOMPARE(shown.item("hand")->kindFlags(), 1U + 2U + 4U);
        QCOMPARE(shown.item("pin")->kindFlags(), 2U + 4U);
    }

    void kinds_in_debug_mode()
    {
        const ShownModel shown(
            group("scene", {key("hand", {geometry("skin"), coreless("bare")}), transform("base")}),
            true);
        QCOMPARE(shown.item("scene")->kindFlags(), 0U);
        QCOMPARE(shown.item("hand")->kindFlags(), 2U + 4U);
        QCOMPARE(shown.item("skin")->kindFlags(), 1U);
        QCOMPARE(shown.item("bare")->kindFlags(), 0U);
        QCOMPARE(shown.item("base")->kindFlags(), 2U);
    }

    void names_data()
    {
        QTest::addColumn<Name>("bytes");
        QTest::addColumn<QString>("name");
        QTest::newRow("none") << Name(noName) << QString();
        QTest::newRow("empty") << Name("") << QString();
        QTest::newRow("UTF-8") << Name("\xc3\x84rmel") << QStringLiteral("\u00c4rmel");
        QTest::newRow("not UTF-8") << Name("\xc4rmel") << QStringLiteral("\u00c4rmel");
        QTest::newRow("star") << Name("a*") << QStringLiteral("a*");
        QTest::newRow("percent") << Name("%1 %n") << QStringLiteral("%1 %n");
    }
    void names()
    {
        QFETCH(Name, bytes);
        QFETCH(QString, name);
        ShownModel shown(key(bytes));
        const QModelIndex index = shown.model.index(0, 0);
        QCOMPARE(index.data(Qt::DisplayRole), QVariant(name));
        QCOMPARE(index.data(Qt::EditRole), QVariant(name));
        QCOMPARE(index.data(keyRole), QVariant(name));
        QCOMPARE(index.data(propertiesRole).value<SGV_GraphModelIndexProperties>().name, name);
        shown.model.setConnectionsData({{AT_ModelNodeKey(name), QStringLiteral("%1")}});
        QCOMPARE(index.data().toString(), QString(name + u'*'));
        QCOMPARE(index.data(Qt::ToolTipRole).toString(), QStringLiteral("Connected to %1"));
        QCOMPARE(index.data(keyRole).toString(), name);
    }

    void connected_subnodes_have_a_mark_and_a_tool_tip()
    {
        ShownModel shown(armAndBase());
        QVERIFY(!shown.data("arm", Qt::ToolTipRole).isValid());
        shown.model.setConnectionsData({{keyOf("arm"), QStringLiteral("A, B")},
                                        {keyOf("hand"), QString()},
                                        {keyOf("stranger"), QStringLiteral("C")}});
        QCOMPARE(RowsOf::text(shown.model), QStringLiteral("arm*(hand pin) foot"));
        QCOMPARE(shown.data("arm", Qt::ToolTipRole).toString(),
                 QStringLiteral("Connected to A, B"));
        QVERIFY(!shown.data("hand", Qt::ToolTipRole).isValid());
        QVERIFY(!shown.data("pin", Qt::ToolTipRole).isValid());
        QCOMPARE(shown.data("arm", propertiesRole).value<SGV_GraphModelIndexProperties>().name,
                 QStringLiteral("arm"));
    }

    void new_connections_replace_the_old_ones()
    {
        ShownModel shown(armAndBase());
        shown.model.setConnectionsData({{keyOf("arm"), QStringLiteral("A")}});
        SGV_GraphModel::ConnectionsData next{{keyOf("pin"), QStringLiteral("B")}};
        shown.model.setConnectionsData(next);
        next.clear();
        QCOMPARE(RowsOf::text(shown.model), QStringLiteral("arm(hand pin*) foot"));
        shown.model.setConnectionsData({});
        QCOMPARE(RowsOf::text(shown.model), QStringLiteral("arm(hand pin) foot"));
    }

    void equal_names_share_connections_and_state()
    {
        ShownModel shown(key("a", {key("a"), key("b", {key("a")})}));
        shown.model.setConnectionsData({{keyOf("a"), QStringLiteral("X")}});
        QCOMPARE(RowsOf::text(shown.model), QStringLiteral("a*(a* b(a*))"));
        shown.model.setVisibilityData({{keyOf("a"), SGV_GraphItem::ShapeHidden}});
        for (const SGV_GraphItem* item : shown.model.items())
            QCOMPARE(item->visibilityState(), item->name() == QStringLiteral("a") ? 2U : 0U);
    }

    void all_below_a_disabled_subnode_know_it()
    {
        ShownModel shown(key("a", {key("b", {key("c")}), key("d")}));
        shown.model.setVisibilityData(
            {{keyOf("b"), SGV_GraphItem::Disabled}, {keyOf("d"), SGV_GraphItem::ShapeHidden}});
        QVERIFY(!shown.item("a")->isAncestorDisabled());
        QCOMPARE(shown.item("b")->visibilityState(), 1U);
        QVERIFY(!shown.item("b")->isAncestorDisabled());
        QCOMPARE(shown.item("c")->visibilityState(), 0U);
        QVERIFY(shown.item("c")->isAncestorDisabled());
        QVERIFY(!shown.item("d")->isAncestorDisabled());
        shown.model.setVisibilityData({{keyOf("a"), SGV_GraphItem::ShapeHidden}});
        QCOMPARE(shown.item("b")->visibilityState(), 0U);
        QVERIFY(!shown.item("c")->isAncestorDisabled());
    }

    void any_states_are_applied_by_the_plain_rule()
    {
        QRandomGenerator random(11);
        for (quint32 seed = 0; seed < 30; ++seed) {
            ShownModel shown(randomModel(seed, 120), seed % 2 == 0);
            SGV_GraphModel::VisibilityData data;
            for (int part = 0; part < 12; part += 1 + random.bounded(3))
                data[AT_ModelNodeKey(QStringLiteral("part%1").arg(part))] = random.bounded(5U);
            if (seed % 3 == 0)
                data[AT_ModelNodeKey()] = SGV_GraphItem::ShapeHidden;
            shown.model.setVisibilityData(data);
            compareStates(shown.model, QModelIndex(), data, false);
        }
    }

    void connections_are_lost_with_a_rebuild()
    {
        ShownModel shown(armAndBase());
        shown.model.setConnectionsData({{keyOf("arm"), QStringLiteral("A")}});
        shown.model.setRootNode(shown.cel->rootNodePtr());
        QCOMPARE(RowsOf::text(shown.model), QStringLiteral("arm(hand pin) foot"));
    }

    void states_are_lost_with_a_rebuild()
    {
        ShownModel shown(armAndBase());
        shown.model.setVisibilityData({{keyOf("arm"), 3U}});
        QCOMPARE(shown.item("arm")->visibilityState(), 3U);
        shown.model.setRootNode(shown.cel->rootNodePtr());
        QCOMPARE(shown.item("arm")->visibilityState(), 0U);
        QVERIFY(!shown.item("hand")->isAncestorDisabled());
    }
};

QTEST_MAIN(tst_SGV_GraphModelData)
#include "tst_SGV_GraphModelData.moc"
