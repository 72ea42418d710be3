// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "host/models/CEL_SharedPtr.h"
#include "host/scene/TUNodeSet.h"

#include <memory>
#include <set>
#include <utility>
#include <vector>

class AT_ModelData;
class GV_GraphUiInfo;
class GV_GraphXViewQt;
class GV_UiNode;
class GV_UiSgNode;
class MO_ElementModule;
class QString;
class SC_SessionContext;
class SL_Selection;
class TD_CelVq3d;
class TUScene;

/// Keeps what a graph view shows in step with the host's scene, selection and sub-selection, and
/// answers which state its nodes are in. What is selected always comes from the host, never the
/// other way round. The view owns its controller.
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

    /// @name Visibility at the current frame
    /// @{

    /// A header is asked of its own element, any other node of the visible one; false without an
    /// element.
    bool nodeHasState(eVisibilityState state, const GV_UiNode* node) const;
    bool hasSelectedSubNodeWithState(eVisibilityState state) const;
    /// Looks at the editable subnodes outside the selection and off the paths that lead to it.
    bool hasUnSelectedSubNodeWithState(eVisibilityState state) const;
    /// @}

private:
    using ModelList = std::vector<std::pair<MO_ElementModule*, CEL_SharedPtr<TD_CelVq3d>>>;

    /// Shows the models; true when the extent of the graph may have changed.
    bool updateUiInfo(const ModelList& models, const MO_ElementModule* preferred);

    void emitAndRefresh();
    void buildPickIdsFromUiSgNode(const MO_ElementModule* element,
                                  const std::set<GV_UiSgNode*>& nodes, std::set<int>& ids) const;
    void populateSelected3dModules(const ModelList& models);
    CEL_SharedPtr<TD_CelVq3d> getVq3dCelRep(MO_Node* node) const;

    bool hasState(eVisibilityState state, const QString& name, const AT_ModelData* data) const;
    /// The settings of the element's subnodes at the current frame; null when it has none.
    AT_ModelData* currentModelData(const MO_ElementModule* element) const;

    GV_GraphXViewQt* _view;
    std::unique_ptr<GV_GraphUiInfo> _uiInfo;
    SC_SessionContext* _sessionContext;
    TUScene* _currentScene;
    std::set<MO_ElementModule*> _selected3dModules;
    bool _extendedDisplay;
};
