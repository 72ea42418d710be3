// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "referencehost/session/HostSession.h"

#include <QStringList>
#include <initializer_list>
#include <memory>
#include <vector>

class GV_GraphUiInfo;
class GV_GraphXViewQt;
class GV_UiNode;
class MO_ElementModule;
class MO_Node;
class QRandomGenerator;
class TD_CelVq3d;

/// A session with an open scene and a graph view on it, and the moves that tests make there. Every
/// move is told to the listeners before it returns.
class GraphStage
{
public:
    GraphStage();
    ~GraphStage();

    HostSession& session() { return _session; }
    SC_SessionContext& context() { return _session.context(); }
    TUScene& scene() { return *_session.currentScene(); }

    /// A view on the session; the first call makes it.
    GV_GraphXViewQt& view();
    /// What the view shows.
    GV_GraphUiInfo& graph();
    /// A view beside the stage's own.
    std::unique_ptr<GV_GraphXViewQt> newView();

    /// Shows the model from the first frame to the last; a null model makes an element without one.
    MO_ElementModule& addElement(const QString& name, const CEL_SharedPtr<TD_CelVq3d>& model,
                                 int firstFrame = 1, int lastFrame = 1000);
    MO_ElementModule& addElement(const QString& name, const QString& model);
    MO_Node& addPeg(const QString& name);
    void remove(MO_Node& node);

    /// Selects these and nothing else, in this order.
    void select(const std::vector<MO_Node*>& nodes);
    /// Adds to the sub-selection of a selected element.
    void subSelect(const MO_ElementModule& element, const QStringList& names);
    void goToFrame(int frame);
    /// Switches subnodes on or off from a frame on, and gives the element settings if it had none.
    void setVisible(MO_ElementModule& element, const QStringList& names, bool visible,
                    int frame = 1);
    void notify();

    /// The first node of the visible tree with this name, its header included; null if none.
    GV_UiNode* node(const QString& name);
    /// The names of the selected nodes, in alphabetical order.
    QStringList selectedNames();
    /// The headers in order, the visible one in brackets.
    QStringList headers();

private:
    HostSession _session;
    std::unique_ptr<GV_GraphXViewQt> _view;
};

/// A model from a description: the names of its nodes, each followed by its children in round
/// brackets if it has any. "body(arm(hand) leg)" describes key nodes; a '+' before a name makes a
/// plain group, a '.' a shape. '_' stands for no name. Key nodes without children are given a
/// nameless shape, so that the filtered display shows them.
CEL_SharedPtr<TD_CelVq3d> model(const QString& description);

/// A model of about this many nodes of all kinds. Some names occur twice, some are long, some
/// missing.
CEL_SharedPtr<TD_CelVq3d> randomModel(QRandomGenerator& random, int nodes);

/// One key node with this many others right below it, every tenth of which has a child of its own.
CEL_SharedPtr<TD_CelVq3d> longModel(int rows);

/// Every node of the visible tree, folded away or not, in pre-order and without the header.
std::vector<GV_UiNode*> treeNodes(const GV_GraphUiInfo& graph);

/// Folds some branches of the visible tree at random, without laying it out.
void collapseSome(QRandomGenerator& random, const GV_GraphUiInfo& graph);
