// SPDX-License-Identifier: MIT

#include "benchmarks/subnodetree/StandardTree.h"

#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_GraphModel.h"

#include <QHash>
#include <QHeaderView>

StandardTree::StandardTree(const SGV_GraphModel& rows)
{
    QHash<const SGV_GraphItem*, QStandardItem*> made;
    for (const SGV_GraphItem* item : rows.items()) {
        auto* copy = new QStandardItem(item->name());
        QStandardItem* parent = made.value(item->parent(), _model.invisibleRootItem());
        parent->appendRow(copy);
        made.insert(item, copy);
    }
    _proxy.setSourceModel(&_model);
    _proxy.setRecursiveFilteringEnabled(true);
    _proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    _view.setModel(&_proxy);
    _view.setHeaderHidden(true);
    _view.setUniformRowHeights(true);
    _view.header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    _view.header()->setStretchLastSection(false);
    _view.resize(300, 700);
    _view.show();
    _view.expandAll();
}

void StandardTree::setFilter(const QString& text)
{
    _proxy.setFilterFixedString(text);
    _view.expandAll();
}
