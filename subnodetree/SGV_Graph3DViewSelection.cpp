// SPDX-License-Identifier: MIT

#include "host/commands/CO_CommandAccumScope.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_Model3DUtils.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeWith3DSubNode.h"
#include "host/selection/SL_SelectionCommands.h"
#include "host/selection/SL_SubSelectionUtil.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"

#include <QLabel>
#include <QSet>
#include <QTreeView>
#include <algorithm>
#include <map>

namespace {

int subnodeIdOf(const SLB_NodeWith3DSubNode& selected, const QModelIndex& index)
{
    return selected.subNodeId(
        AT_ModelNodeKey(index.data(SGV_GraphModel::SubnodeKeyRole).toString()));
}

/// The rows of a selection, of those that can be selected. Reading them from its ranges takes a
/// time that grows with the rows alone.
QModelIndexList rowsOf(const QItemSelection& selection)
{
    QModelIndexList rows;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex index = range.model()->index(row, range.left(), range.parent());
            constexpr Qt::ItemFlags selectable = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
            if ((index.flags() & selectable) == selectable)
                rows.append(index);
        }
    }
    return rows;
}

/// The rows as a selection of as few ranges as there can be: each further range slows everything
/// down that is later done with the selection.
QItemSelection selectionOf(QModelIndexList rows)
{
    std::map<quintptr, std::vector<QModelIndex>> byParent;
    for (const QModelIndex& row : rows)
        byParent[row.parent().internalId()].push_back(row);
    QItemSelection selection;
    for (auto& [parent, siblings] : byParent) {
        std::ranges::sort(siblings, {}, [](const QModelIndex& index) { return index.row(); });
        for (std::size_t first = 0; first < siblings.size();) {
            std::size_t last = first;
            while (last + 1 < siblings.size() &&
                   siblings[last + 1].row() <= siblings[last].row() + 1)
                ++last;
            selection.append(QItemSelectionRange(siblings[first], siblings[last]));
            first = last + 1;
        }
    }
    return selection;
}

/// Repainting and measuring wait until a view's selection is complete.
class UpdatesOff
{
public:
    explicit UpdatesOff(QWidget& widget)
        : _widget(widget)
        , _wereOn(widget.updatesEnabled())
    {
        _widget.setUpdatesEnabled(false);
    }
    ~UpdatesOff() { _widget.setUpdatesEnabled(_wereOn); }
    UpdatesOff(const UpdatesOff&) = delete;
    UpdatesOff& operator=(const UpdatesOff&) = delete;

private:
    QWidget& _widget;
    bool _wereOn;
};

} // namespace

QModelIndexList SGV_Graph3DView::selectedRows() const
{
    return rowsOf(_treeView->selectionModel()->selection());
}

QItemSelection SGV_Graph3DView::rowsToDeselect(const SLB_NodeWith3DSubNode& selected) const
{
    QModelIndexList rows = selectedRows();
    rows.removeIf([&selected](const QModelIndex& index) {
        return selected.isSubSelected(subnodeIdOf(selected, index));
    });
    return selectionOf(std::move(rows));
}

QItemSelection SGV_Graph3DView::rowsToSelect(const SLB_NodeWith3DSubNode& selected,
                                             const std::vector<int>& ids) const
{
    const QModelIndexList rows = selectedRows();
    const QSet<QModelIndex> there(rows.begin(), rows.end());
    QModelIndexList wanted;
    for (const int id : ids) {
        AT_ModelNodeKey key;
        if (!selected.subNodeKey(id, key))
            continue;
        // What the filter hides has no index in the tree.
        const QModelIndex index = _proxyModel->mapFromSource(_model->findIndex(key));
        if (index.isValid() && !there.contains(index))
            wanted.append(index);
    }
    return selectionOf(std::move(wanted));
}

QModelIndex SGV_Graph3DView::firstSubSelectedRow() const
{
    const SLB_NodeWith3DSubNode* selected = firstNodeWithSubnodes();
    AT_ModelNodeKey key;
    if (!selected ||
        !selected->subNodeKey(SL_SubSelectionUtil::getFirstSubSelectedId(selected), key))
        return {};
    return _proxyModel->mapFromSource(_model->findIndex(key));
}

void SGV_Graph3DView::updateSelection()
{
    updateCurrentSubnodePath(QModelIndex());
    const SLB_NodeWith3DSubNode* selected = firstNodeWithSubnodes();
    QItemSelectionModel* selectionModel = _treeView->selectionModel();
    if (!selected || !selectionModel)
        return;
    const std::vector<int> ids = SL_SubSelectionUtil::getSubSelectedIds(selected);
    {
        const UpdatesOff updatesOff(*_treeView);
        if (const QItemSelection gone = rowsToDeselect(*selected); !gone.isEmpty())
            selectionModel->select(gone, QItemSelectionModel::Deselect);
        if (const QItemSelection added = rowsToSelect(*selected, ids); !added.isEmpty())
            selectionModel->select(added, QItemSelectionModel::Select);
    }
    if (ids.empty())
        return;
    const QModelIndex first = firstSubSelectedRow();
    updateCurrentSubnodePath(first);
    _treeView->scrollTo(first, QAbstractItemView::EnsureVisible);
}

void SGV_Graph3DView::on3DModelSubSectionChanged(const QItemSelection& selected,
                                                 const QItemSelection& deselected)
{
    SLB_NodeWith3DSubNode* node = firstNodeWithSubnodes();
    if (!node || _rebuilding)
        return;
    const QModelIndexList added = rowsOf(selected);
    const QModelIndexList gone = rowsOf(deselected);
    const auto isSubSelected = [node](const QModelIndex& index) {
        return node->isSubSelected(subnodeIdOf(*node, index));
    };
    // What the panel itself brings into step with the host comes back here, and is no change.
    if (std::ranges::all_of(added, isSubSelected) && std::ranges::none_of(gone, isSubSelected))
        return;
    {
        CO_CommandManager* commands = _sessionContext->commandManager();
        const CO_CommandAccumScope step(commands, tr("Subnode Selection"));
        const SL_SelectionCommands::Scope scope(commands, _sessionContext->selection());
        for (const QModelIndex& index : added) {
            if (const int id = subnodeIdOf(*node, index); id != -1)
                node->subSelect(id, true);
        }
        for (const QModelIndex& index : gone) {
            if (const int id = subnodeIdOf(*node, index); id != -1)
                node->subDeselect(id);
        }
    }
    emit subSelectionChanged();
    _sessionContext->changeManager()->notify();
}

void SGV_Graph3DView::updateParentElementModuleName()
{
    const MO_Node* element = TD_Model3DUtils::getParentElement(firstNode());
    const QString name = element ? element->instanceName() : QString();
    if (name == _parentElementModuleName)
        return;
    _parentElementModuleName = name;
    updateCurrentSubnodePath(firstSubSelectedRow());
}

void SGV_Graph3DView::updateCurrentSubnodePath(const QModelIndex& index)
{
    if (!_pathLabel)
        return;
    const QString separator = QStringLiteral(" > ");
    QString path = index.data(SGV_GraphModel::SubnodeKeyRole).toString();
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        path.prepend(above.data(SGV_GraphModel::SubnodeKeyRole).toString() + separator);
    if (!_parentElementModuleName.isEmpty())
        path.prepend(_parentElementModuleName + separator);
    _pathLabel->setText(QLatin1Char(' ') + path);
}
