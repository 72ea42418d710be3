// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_Result.h"
#include "host/models/AT_ModelNodeData.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "tests/graphview/GraphStage.h"

#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <memory>
#include <vector>

class MO_KinematicOutputModule;
class QUndoStack;

/// A panel whose protected operations tests may call.
class OpenTreePanel : public SGV_Graph3DView
{
public:
    using SGV_Graph3DView::reset;
    using SGV_Graph3DView::SGV_Graph3DView;
    using SGV_Graph3DView::updateCurrentSubnodePath;
    using SGV_Graph3DView::updateModel;
    using SGV_Graph3DView::updateNetworkConnectionsData;
    using SGV_Graph3DView::updateParentElementModuleName;
    using SGV_Graph3DView::updateSelection;
    using SGV_Graph3DView::updateVisibilityData;
};

/// A session with an open scene and a subnode tree on it. Rows are named by their subnodes; where
/// several are named alike, the first one in the order of the tree is meant.
class TreeStage : public GraphStage
{
public:
    TreeStage();
    ~TreeStage();

    /// The panel; the first call makes it.
    OpenTreePanel& panel();
    void destroyPanel() { _panel.reset(); }
    QTreeView& tree() { return *panel().treeView(); }
    /// Shows the panel, large enough for a dozen rows; false when it does not appear.
    bool show();

    /// The row; invalid when there is none.
    QModelIndex row(const QString& name);
    /// All rows that the filter shows, each before what is below it.
    QModelIndexList rows();
    /// The rows as "body(arm(hand) leg)", as they are displayed.
    QString outline();
    /// The names of the selected rows, in the order of the tree.
    QStringList selectedRows();
    /// The names of the expanded rows, of those with rows below.
    QStringList expandedRows();
    QString path() { return panel().pathLabel()->text(); }

    /// Clicks on a row with the real mouse; it is brought into sight before.
    void click(const QModelIndex& row, Qt::KeyboardModifiers held = Qt::NoModifier);
    void click(const QString& name, Qt::KeyboardModifiers held = Qt::NoModifier);
    void filter(const QString& text) { panel().filterField()->setText(text); }
    /// Offers the action to the panel by the name of its slot.
    AC_Result perform(const char* slot);

    /// The names of what the host has sub-selected of the first selected node, in its order.
    QStringList subSelected();
    QUndoStack& history();
    /// The name of the step that would be undone; empty when there is none.
    QString lastStep();

    /// A kinematic output that reads the subnode, fed by the port of the element.
    MO_KinematicOutputModule& addOutput(const QString& name, const QString& subnode,
                                        MO_ElementModule& element, int port = 0);
    /// Gives the subnode a record of this kind from the frame on.
    void setRecord(MO_ElementModule& element, const QString& subnode,
                   const AT_ModelNodeData& record, int frame = 1);

private:
    std::unique_ptr<OpenTreePanel> _panel;
};

/// A node with a string attribute, as much of a kinematic output as it is told to be.
std::unique_ptr<MO_Node> outputLookalike(const QString& typeName, const QString& keyword,
                                         const QString& value);

/// Whether the text attribute of a kinematic output could be set.
bool setSubnodeName(MO_Node& output, const QString& subnode);
