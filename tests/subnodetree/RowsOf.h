// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QStringList>
#include <vector>

/// What a model of one column shows, for comparison.
namespace RowsOf {

/// All indexes, each before what is below it. Not recursive, as models may be deeper than the
/// stack.
inline std::vector<QModelIndex> preOrder(const QAbstractItemModel& model)
{
    std::vector<QModelIndex> found;
    std::vector<QModelIndex> pending{QModelIndex()};
    while (!pending.empty()) {
        const QModelIndex parent = pending.back();
        pending.pop_back();
        if (parent.isValid())
            found.push_back(parent);
        for (int row = model.rowCount(parent) - 1; row >= 0; --row)
            pending.push_back(model.index(row, 0, parent));
    }
    return found;
}

/// The texts of the rows, each with what is below it in brackets behind it.
inline QStringList texts(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QStringList below = texts(model, index);
        const QString own = index.data().toString();
        rows << (below.isEmpty() ? own : own + u'(' + below.join(u' ') + u')');
    }
    return rows;
}

/// All of them in one line: "a(b c(d)) e".
inline QString text(const QAbstractItemModel& model)
{
    return texts(model).join(u' ');
}

} // namespace RowsOf
