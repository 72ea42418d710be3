// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "host/actions/AC_ActionInfo.h"
#include "host/layout/TUWidgetLayoutView.h"
#include "host/models/CEL_SharedPtr.h"
#include "host/scene/MO_Node.h"
#include "host/scene/TUNodeSet.h"
#include "host/scene/TUScene.h"

#include <QItemSelection>
#include <memory>

class MO_BaseContext;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QTreeView;
class SC_SessionContext;
class SGV_GraphModel;
class SLB_NodeWith3DSubNode;
class SubNodeFilterProxyModel;
class TD_CelVq3d;

/// The panel of the subnode tree view: the subnodes of the 3D model element that was selected
/// first, as a list that can be filtered, in step with the host's sub-selection both ways. Below it
/// stand the filter field and the path of the current subnode.
///
/// Construct it, then call init() before it is shown.
class SUBNODEVIEWS_EXPORT SGV_Graph3DView : public TUWidgetLayoutView
{
    Q_OBJECT

public:
    /// Neither the manager nor the session is owned; the session must outlive the panel.
    SGV_Graph3DView(AC_Manager* manager, QWidget* parent, SC_SessionContext* session);
    ~SGV_Graph3DView() override;

    /// Makes the widgets and shows what is selected in the host.
    void init();

    TULayoutView* clone(QWidget* parent) const override;
    bool hasMenu() override;
    QDomElement toolbar() override;

    /// @name Parts of the panel, which it owns; null before init()
    /// @{
    QTreeView* treeView() const { return _treeView; }
    SGV_GraphModel* model() const { return _model.get(); }
    SubNodeFilterProxyModel* proxyModel() const { return _proxyModel.get(); }
    QLineEdit* filterField() const { return _filterField; }
    QLabel* pathLabel() const { return _pathLabel; }
    /// @}

signals:
    /// The panel has changed the host's sub-selection.
    void subSelectionChanged();

public slots:
    void onSelectionChanged();
    void onSubSelectionChanged();
    void onCurrentFrameChanged();
    void onCurrentSceneChanged(TUScene* scene);
    void nodesChanged(const TUNodeSet& nodes);
    void networkChanged();
    /// Takes a change of the tree's selection over into the host, if it is one there.
    void on3DModelSubSectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected);
    void onFilterChanged();
    void onCustomContextMenu(const QPoint& position);
    void onActionExpandAll();
    void onActionCollapseAll();
    void onActionExpandSelection();
    void onActionCollapseSelection();
    /// Puts the name of the current subnode on the clipboard.
    void onActionCopySubNodeName();
    void onActionCopySubNodeNameValidate(AC_ActionInfo* validate);
    /// Between the subnodes and every node of the scene graph.
    void onActionToggleDebugMode();
    void onActionToggleDebugModeValidate(AC_ActionInfo* info);
    void selectAll();
    void deselect();

protected:
    /// Forgets the model that is shown.
    void reset();
    void updateModel();
    void updateSelection();
    void updateCurrentSubnodePath(const QModelIndex& index);
    void updateParentElementModuleName();
    void updateNetworkConnectionsData();
    void updateVisibilityData();

private:
    void initTree();
    QBoxLayout* newFilterLine();
    void connectNotifications();
    void refreshTree();

    MO_Node* firstNode() const;
    /// The interface of the first selected node; null unless that has subnodes.
    SLB_NodeWith3DSubNode* firstNodeWithSubnodes() const;
    MO_BaseContext frameContext(const MO_Node& node) const;
    /// The model of the node as it is shown, its parts moved; null when it shows none now.
    CEL_SharedPtr<TD_CelVq3d> shownModel(MO_Node& node) const;

    QModelIndexList selectedRows() const;
    QItemSelection rowsToDeselect(const SLB_NodeWith3DSubNode& selected) const;
    QItemSelection rowsToSelect(const SLB_NodeWith3DSubNode& selected,
                                const std::vector<int>& ids) const;
    QModelIndex firstSubSelectedRow() const;

    SC_SessionContext* _sessionContext;
    QTreeView* _treeView = nullptr;
    std::unique_ptr<SGV_GraphModel> _model;
    std::unique_ptr<SubNodeFilterProxyModel> _proxyModel;
    QLabel* _pathLabel = nullptr;
    UT_SharedWeakPtr<MO_Node> _currentNode;
    QString _parentElementModuleName;
    QLineEdit* _filterField = nullptr;
    /// While rows come and go by themselves, what the tree deselects with them means nothing.
    bool _rebuilding = false;
};
