// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "graphview/GV_GraphXViewQt.h"
#include "host/geometry/Vector2d.h"
#include "host/models/CEL_SharedPtr.h"
#include "host/scene/TUNodeSet.h"

#include <cstdint>
#include <memory>
#include <set>
#include <utility>
#include <vector>

class AT_ModelData;
class GV_GraphUiInfo;
class GV_UiHeaderNode;
class GV_UiNode;
class GV_UiSgNode;
class MO_ElementModule;
class QString;
class SC_SessionContext;
class SL_Selection;
class TD_CelVq3d;
class TUScene;

/// Keeps what a graph view shows in step with the host's scene, selection and sub-selection, and
/// turns the user's gestures into changes of these. Gestures never mark nodes as selected: they
/// change the host's selection, and what is selected comes back from there. The view owns its
/// controller.
class SUBNODEVIEWS_EXPORT GV_GraphXViewCtrl
{
public:
    /// Whether a subnode is switched on.
    enum eVisibilityState
    {
        eHidden = 0,
        eVisible = 1
    };

    /// Neither is owned; both must outlive the controller.
    GV_GraphXViewCtrl(GV_GraphXViewQt* view, SC_SessionContext* session);
    GV_GraphXViewCtrl(const GV_GraphXViewCtrl&) = delete;
    GV_GraphXViewCtrl& operator=(const GV_GraphXViewCtrl&) = delete;
    virtual ~GV_GraphXViewCtrl();

    /// For subclasses that react to a selecting gesture: called at its end, while the host still
    /// holds its notifications back.
    virtual void UpdateFromSelection(SL_Selection* selection);
    virtual void onAnimateSelectedSubNodes();

    /// Never null.
    GV_GraphUiInfo* uiInfo() const { return _uiInfo.get(); }
    /// Whether the tree holds every scene-graph node, or key nodes only.
    bool isExtendedDisplay() const { return _extendedDisplay; }

    /// Counts the times that the settings of subnodes may have become others.
    std::uint64_t settingsRevision() const { return _settingsRevision; }

    /// @name What the host tells
    /// @{
    void selectionChanged();
    void subSelectionChanged();
    void currentFrameChanged();
    /// The scene may be null.
    void currentSceneChanged(TUScene* scene);
    void networkChanged();
    void nodesChanged(const TUNodeSet& nodes);
    void nodesNameChanged(const TUNodeSet& nodes);
    /// @}

    /// @name Selecting. Points are in model units.
    /// @{

    /// A press of the left button. eMouseHandled when it selected or folded something; eMouseNone
    /// when a marquee may start there.
    GV_GraphXViewQt::eMouseAction onMouseDown(Math::Vector2d& point);
    /// Selects what the view's marquee touches.
    void onMarqueeRelease();
    /// Drops everything but the visible model from the selection, and its sub-selection.
    void onDeselectTree();
    /// False when nothing was selected. Listeners are told only when the caller says so.
    bool onDeselectAll(bool emitChanges);
    /// Sub-selects every key node of the visible model, where that is selected.
    bool onSelectAll();
    /// The whole name of a node whose label may not tell it; empty where there is none.
    QString fullNodeNameAtModelPoint(const Math::Point2d& point) const;

    /// @}
    /// @name Visibility at the current frame
    /// @{

    /// A header is asked of its own element, any other node of the visible one; false without an
    /// element.
    bool nodeHasState(eVisibilityState state, const GV_UiNode* node) const;
    bool hasSelectedSubNodeWithState(eVisibilityState state) const;
    /// Looks at the editable subnodes outside the selection and off the paths that lead to it.
    bool hasUnSelectedSubNodeWithState(eVisibilityState state) const;

    /// Shows or hides the selected subnodes, as one undo step.
    void onSetNodesVisible(bool visible);
    /// Shows or hides those that hasUnSelectedSubNodeWithState() looks at.
    void onSetOtherNodesVisible(bool visible);

    /// @}
    /// @name Folding and display mode
    /// @{

    /// Folds or unfolds every node of the visible tree.
    void setAllCollapsedState(bool collapsed);
    bool hasSubNodeWithCollapsedState(bool collapsed) const;
    /// Changes between key nodes and every node, here and for views to come.
    void onToggleDisplayMode();

    /// @}

private:
    using ModelList = std::vector<std::pair<MO_ElementModule*, CEL_SharedPtr<TD_CelVq3d>>>;

    /// Shows the models; true when the extent of the graph may have changed.
    bool updateUiInfo(const ModelList& models, const MO_ElementModule* preferred);

    bool onSelect(int graphIx, GV_UiNode* node);
    void onControl(GV_UiNode* node);
    void onNothing();
    bool onMarqueeSelect(int graphIx, const std::set<GV_UiHeaderNode*>& headers,
                         const std::set<GV_UiSgNode*>& nodes);
    void dropSelection(SL_Selection* selection);
    void emitAndRefresh();
    void buildPickIdsFromUiSgNode(const MO_ElementModule* element,
                                  const std::set<GV_UiSgNode*>& nodes, std::set<int>& ids) const;
    void populateSelected3dModules(const ModelList& models);
    CEL_SharedPtr<TD_CelVq3d> getVq3dCelRep(MO_Node* node) const;

    bool hasState(eVisibilityState state, const QString& name, const AT_ModelData* data) const;
    /// The settings of the element's subnodes at the current frame; null when it has none.
    AT_ModelData* currentModelData(const MO_ElementModule* element) const;
    /// Gives the nodes records that differ from theirs in nothing but being visible.
    void setVisible(MO_ElementModule* element, const std::vector<const GV_UiNode*>& nodes,
                    bool visible);

    /// Whether the visible tree has folded nodes and unfolded ones, and of which state of the tree
    /// that was found.
    struct FoldStates
    {
        const GV_UiNode* root = nullptr;
        std::uint64_t treeRevision = 0;
        std::uint64_t layoutRevision = 0;
        bool collapsed = false;
        bool expanded = false;
    };

    GV_GraphXViewQt* _view;
    std::unique_ptr<GV_GraphUiInfo> _uiInfo;
    SC_SessionContext* _sessionContext;
    TUScene* _currentScene;
    std::set<MO_ElementModule*> _selected3dModules;
    bool _extendedDisplay;
    std::uint64_t _settingsRevision = 0;
    mutable FoldStates _foldStates;
};
