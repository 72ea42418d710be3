// SPDX-License-Identifier: MIT
#pragma once

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTreeView>

class SGV_GraphModel;

/// The same rows with what Qt has for it, which is how programs of this kind are mostly built: a
/// QStandardItemModel behind a proxy that filters recursively.
class StandardTree
{
public:
    explicit StandardTree(const SGV_GraphModel& rows);

    void setFilter(const QString& text);

private:
    QStandardItemModel _model;
    QSortFilterProxyModel _proxy;
    QTreeView _view;
};
