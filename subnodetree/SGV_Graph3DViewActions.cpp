// SPDX-License-Identifier: MIT

#include "host/scene/SC_SessionContext.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_SubSelectionUtil.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTreeView>

void SGV_Graph3DView::onCustomContextMenu(const QPoint&)
{
    if (QMenu* popup = menu(ePopupMenu))
        popup->popup(QCursor::pos());
}

void SGV_Graph3DView::onActionExpandAll()
{
    _treeView->expandAll();
}

void SGV_Graph3DView::onActionCollapseAll()
{
    _treeView->collapseAll();
}

void SGV_Graph3DView::onActionExpandSelection()
{
    for (const QModelIndex& index : selectedRows())
        _treeView->expand(index);
}

void SGV_Graph3DView::onActionCollapseSelection()
{
    for (const QModelIndex& index : selectedRows())
        _treeView->collapse(index);
}

void SGV_Graph3DView::onActionCopySubNodeName()
{
    const QModelIndex current = _treeView->currentIndex();
    QApplication::clipboard()->setText(current.data(SGV_GraphModel::SubnodeKeyRole).toString(),
                                       QClipboard::Clipboard);
}

void SGV_Graph3DView::onActionCopySubNodeNameValidate(AC_ActionInfo* validate)
{
    validate->setEnabled(_treeView->currentIndex().isValid());
}

void SGV_Graph3DView::onActionToggleDebugMode()
{
    const MO_Node* node = firstNode();
    SLB_NodeInterface* selected = node ? node->selInterface() : nullptr;
    if (!selected)
        return;
    const std::vector<int> ids = SL_SubSelectionUtil::getSubSelectedIds(selected);
    _model->setDebugMode(!_model->debugMode());
    reset();
    updateModel();
    updateNetworkConnectionsData();
    updateVisibilityData();
    updateParentElementModuleName();
    for (const int id : ids)
        selected->subSelect(id, true);
    updateSelection();
}

void SGV_Graph3DView::onActionToggleDebugModeValidate(AC_ActionInfo* info)
{
    info->setChecked(_model->debugMode());
}

void SGV_Graph3DView::selectAll()
{
    _treeView->selectAll();
}

void SGV_Graph3DView::deselect()
{
    _treeView->clearSelection();
}
