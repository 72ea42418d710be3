// SPDX-License-Identifier: MIT

#include "workbench/views/ViewState.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_TreeWalk.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"

#include <QItemSelectionModel>
#include <QScrollBar>
#include <QTreeView>
#include <functional>
#include <vector>

namespace {

QString keyOf(const QModelIndex& index)
{
    return index.data(SGV_GraphModel::SubnodeKeyRole).toString();
}

/// Every row that has rows below it, each before those.
void forEachBranch(const QAbstractItemModel& model,
                   const std::function<void(const QModelIndex&)>& visit)
{
    std::vector<QModelIndex> pending{QModelIndex()};
    while (!pending.empty()) {
        const QModelIndex parent = pending.back();
        pending.pop_back();
        const int rows = model.rowCount(parent);
        if (parent.isValid() && rows > 0)
            visit(parent);
        for (int row = rows - 1; row >= 0; --row)
            pending.push_back(model.index(row, 0, parent));
    }
}

} // namespace

GraphViewState::GraphViewState(const GV_GraphXViewQt& view)
{
    remember(view);
}

void GraphViewState::remember(const GV_GraphXViewQt& view)
{
    GV_TreeWalk walk(view.controller()->uiInfo()->rootUiNode());
    while (const GV_UiNode* node = walk.next()) {
        if (!node->isSgNode())
            continue;
        if (node->isCollapsed())
            _collapsed.insert(node->name());
        else
            _collapsed.remove(node->name());
    }
}

void GraphViewState::restore(GV_GraphXViewQt& view) const
{
    GV_GraphUiInfo* graph = view.controller()->uiInfo();
    view.prepareGeometryChange();
    // The graph keeps the tree of an element for as long as that has one, whatever it shows.
    graph->clearUiNodeGraph();
    view.onSelectionChanged();
    GV_TreeWalk walk(graph->rootUiNode());
    while (GV_UiNode* node = walk.next())
        node->setCollapsed(node->isSgNode() && _collapsed.contains(node->name()));
    graph->calculateGeometricData();
    view.updateNavigatorMatrix();
    view.refreshView();
}

TreeViewState::TreeViewState(const SGV_Graph3DView& view)
    : _current(keyOf(view.treeView()->currentIndex()))
    , _scrolled(view.treeView()->verticalScrollBar()->value())
{
    const QTreeView& tree = *view.treeView();
    forEachBranch(*view.proxyModel(), [&](const QModelIndex& index) {
        if (!tree.isExpanded(index))
            _collapsed.insert(keyOf(index));
    });
}

void TreeViewState::restore(SGV_Graph3DView& view) const
{
    QTreeView& tree = *view.treeView();
    std::vector<QModelIndex> folded;
    forEachBranch(*view.proxyModel(), [&](const QModelIndex& index) {
        if (_collapsed.contains(keyOf(index)))
            folded.push_back(index);
    });
    tree.expandAll();
    for (const QModelIndex& index : folded)
        tree.collapse(index);
    const QModelIndex current =
        view.proxyModel()->mapFromSource(view.model()->findIndex(AT_ModelNodeKey(_current)));
    if (!_current.isEmpty() && current.isValid())
        tree.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    tree.verticalScrollBar()->setValue(_scrolled);
}
