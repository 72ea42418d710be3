// SPDX-License-Identifier: MIT

#include "subnodetree/SGV_GraphItem.h"

#include <QRegularExpression>
#include <QTest>
#include <limits>
#include <memory>
#include <vector>

namespace {

SGV_GraphItem* addChild(SGV_GraphItem& parent, const QString& name = QString())
{
    auto* child = new SGV_GraphItem(name, &parent);
    parent.append(child);
    return child;
}

QList<int> rowsOfChildren(const SGV_GraphItem& parent)
{
    QList<int> rows;
    for (const SGV_GraphItem* child : parent.children())
        rows << child->row();
    return rows;
}

} // namespace

class tst_SGV_GraphItem : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void new_item_has_its_name_and_parent_and_nothing_else()
    {
        SGV_GraphItem root(QStringLiteral("root"), nullptr);
        const SGV_GraphItem* arm = addChild(root, QStringLiteral("arm"));
        QCOMPARE(arm->name(), QStringLiteral("arm"));
        QCOMPARE(arm->parent(), &root);
        QVERIFY(arm->children().isEmpty());
        QCOMPARE(arm->kindFlags(), 0U);
        QCOMPARE(arm->visibilityState(), 0U);
        QVERIFY(!arm->isAncestorDisabled());
        QCOMPARE(arm->order(), -1);
        QCOMPARE(root.parent(), nullptr);
    }

    void bits_have_fixed_numbers()
    {
        QCOMPARE(quint32(SGV_GraphItem::IsGeometry), 1U);
        QCOMPARE(quint32(SGV_GraphItem::IsTransform), 2U);
        QCOMPARE(quint32(SGV_GraphItem::IsKeyTransform), 4U);
        QCOMPARE(quint32(SGV_GraphItem::Disabled), 1U);
        QCOMPARE(quint32(SGV_GraphItem::ShapeHidden), 2U);
    }

    void item_keeps_what_it_is_given()
    {
        SGV_GraphItem item(QString(), nullptr);
        item.setKindFlags(SGV_GraphItem::IsGeometry | SGV_GraphItem::IsKeyTransform);
        item.setVisibility(SGV_GraphItem::ShapeHidden, true);
        item.setOrder(7);
        QCOMPARE(item.kindFlags(), 5U);
        QCOMPARE(item.visibilityState(), 2U);
        QVERIFY(item.isAncestorDisabled());
        QCOMPARE(item.order(), 7);
        item.setVisibility(0, false);
        QCOMPARE(item.visibilityState(), 0U);
        QVERIFY(!item.isAncestorDisabled());
    }

    void row_of_a_root_is_0()
    {
        const SGV_GraphItem root(QStringLiteral("root"), nullptr);
        QCOMPARE(root.row(), 0);
    }

    void row_is_the_position_among_the_parents_children()
    {
        SGV_GraphItem root(QString(), nullptr);
        for (int i = 0; i < 5; ++i)
            addChild(root, QStringLiteral("same"));
        QCOMPARE(rowsOfChildren(root), (QList<int>{0, 1, 2, 3, 4}));
    }

    void row_is_minus_1_when_the_parent_does_not_have_the_item()
    {
        SGV_GraphItem root(QString(), nullptr);
        const SGV_GraphItem stranger(QString(), &root);
        QCOMPARE(stranger.row(), -1);
        addChild(root);
        QCOMPARE(stranger.row(), -1);
    }

    void item_gets_its_row_when_it_is_appended()
    {
        SGV_GraphItem root(QString(), nullptr);
        addChild(root);
        auto* late = new SGV_GraphItem(QString(), &root);
        QCOMPARE(late->row(), -1);
        root.append(late);
        QCOMPARE(late->row(), 1);
    }

    void rows_follow_deletions()
    {
        SGV_GraphItem root(QString(), nullptr);
        for (int i = 0; i < 4; ++i)
            addChild(root, QString::number(i));
        root.deleteFirstChild();
        QCOMPARE(rowsOfChildren(root), (QList<int>{0, 1, 2}));
        QCOMPARE(root.child(0)->name(), QStringLiteral("1"));
        root.deleteFirstChild();
        QCOMPARE(rowsOfChildren(root), (QList<int>{0, 1}));
        const SGV_GraphItem* added = addChild(root, QStringLiteral("new"));
        QCOMPARE(added->row(), 2);
        QCOMPARE(rowsOfChildren(root), (QList<int>{0, 1, 2}));
        root.deleteFirstChild();
        QCOMPARE(added->row(), 1);
        QCOMPARE(root.child(0)->name(), QStringLiteral("3"));
    }

    void deleting_the_first_child_of_an_item_without_children_does_nothing()
    {
        SGV_GraphItem root(QString(), nullptr);
        root.deleteFirstChild();
        QVERIFY(root.children().isEmpty());
    }

    void deleting_the_first_child_leaves_what_is_below_the_others()
    {
        SGV_GraphItem root(QString(), nullptr);
        addChild(*addChild(root), QStringLiteral("goes"));
        addChild(*addChild(root), QStringLiteral("stays"));
        root.deleteFirstChild();
        QCOMPARE(root.children().size(), 1);
        QCOMPARE(root.child(0)->child(0)->name(), QStringLiteral("stays"));
        QCOMPARE(root.child(0)->child(0)->row(), 0);
    }

    void there_is_no_child_outside_the_rows()
    {
        SGV_GraphItem root(QString(), nullptr);
        QCOMPARE(root.child(0), nullptr);
        SGV_GraphItem* only = addChild(root);
        QCOMPARE(root.child(-1), nullptr);
        QCOMPARE(root.child(0), only);
        QCOMPARE(root.child(1), nullptr);
        QCOMPARE(root.child(std::numeric_limits<int>::max()), nullptr);
    }

    void many_siblings_know_their_rows_fast()
    {
        // A search among the siblings would take minutes.
        constexpr int count = 200000;
        SGV_GraphItem root(QString(), nullptr);
        for (int i = 0; i < count; ++i)
            addChild(root);
        int wrong = 0;
        for (int i = 0; i < count; ++i)
            wrong += root.child(i)->row() != i;
        QCOMPARE(wrong, 0);
    }

    // The leak check of the sanitizer tells whether everything was deleted in the next three.

    void chain_deeper_than_the_stack_is_deleted_with_its_root()
    {
        auto root = std::make_unique<SGV_GraphItem>(QString(), nullptr);
        SGV_GraphItem* last = root.get();
        for (int i = 0; i < 100000; ++i)
            last = addChild(*last);
        QCOMPARE(last->row(), 0);
        root.reset();
        QCOMPARE(root.get(), nullptr);
    }

    void chain_deeper_than_the_stack_is_deleted_as_the_first_child()
    {
        SGV_GraphItem root(QString(), nullptr);
        SGV_GraphItem* last = &root;
        for (int i = 0; i < 100000; ++i)
            last = addChild(*last);
        addChild(root, QStringLiteral("other"));
        root.deleteFirstChild();
        QCOMPARE(root.children().size(), 1);
        QCOMPARE(root.child(0)->name(), QStringLiteral("other"));
    }

    void bushy_tree_is_deleted_with_its_root()
    {
        auto root = std::make_unique<SGV_GraphItem>(QString(), nullptr);
        std::vector<SGV_GraphItem*> level{root.get()};
        for (int depth = 0; depth < 6; ++depth) {
            std::vector<SGV_GraphItem*> below;
            for (SGV_GraphItem* item : level) {
                for (int i = 0; i < 5; ++i)
                    below.push_back(addChild(*item));
            }
            level = below;
        }
        QCOMPARE(int(level.size()), 15625);
        root.reset();
        QCOMPARE(root.get(), nullptr);
    }
};

QTEST_GUILESS_MAIN(tst_SGV_GraphItem)
#include "tst_SGV_GraphItem.moc"
