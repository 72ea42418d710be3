// SPDX-License-Identifier: MIT

#include "workbench/views/FilterCount.h"

#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"

#include <QLineEdit>
#include <QLocale>
#include <vector>

namespace {

qsizetype rowsOf(const QAbstractItemModel& model)
{
    qsizetype count = 0;
    std::vector<QModelIndex> pending{QModelIndex()};
    while (!pending.empty()) {
        const QModelIndex parent = pending.back();
        pending.pop_back();
        const int rows = model.rowCount(parent);
        count += rows;
        for (int row = 0; row < rows; ++row)
            pending.push_back(model.index(row, 0, parent));
    }
    return count;
}

} // namespace

FilterCount::FilterCount(const SGV_Graph3DView& view, QWidget* parent)
    : QLabel(parent)
    , _view(view)
{
    setAccessibleName(tr("Rows of the subnode tree"));
    // The view's own answer to a key press comes first, being connected earlier.
    connect(view.filterField(), &QLineEdit::textChanged, this, &FilterCount::refresh);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(view.model(), signal, this, &FilterCount::refresh, Qt::QueuedConnection);
    refresh();
}

void FilterCount::refresh()
{
    const auto all = static_cast<qsizetype>(_view.model()->items().size());
    const QLocale locale;
    if (all == 0)
        clear();
    else if (_view.filterField()->text().isEmpty())
        setText(tr("Subnodes: %1").arg(locale.toString(all)));
    else
        setText(
            tr("%1 of %2").arg(locale.toString(rowsOf(*_view.proxyModel())), locale.toString(all)));
}
