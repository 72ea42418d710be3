// SPDX-License-Identifier: MIT
#pragma once

#include "referencehost/session/HostSession.h"
#include "tests/graphview/ModelBuilder.h"

#include <QStringList>
#include <memory>
#include <vector>

class GV_GraphUiInfo;
class GV_GraphXViewQt;
class GV_UiNode;
class MO_ElementModule;
class MO_Node;

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

    /// Shows the model from the first frame to the last.
    MO_ElementModule& addElement(const QString& name, const CEL_SharedPtr<TD_CelVq3d>& model,
                                 int firstFrame = 1, int lastFrame = 1000);
    /// Shows the robot.
    MO_ElementModule& addElement(const QString& name);
    /// An element that shows no model.
    MO_ElementModule& addEmptyElement(const QString& name);
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

/// A model of the key nodes body(arm(hand) leg).
CEL_SharedPtr<TD_CelVq3d> robotModel();

/// A key node with a nameless shape, without which the filtered display leaves it out.
ModelBuilder::Part shapedKey(const ModelBuilder::Name& name);
