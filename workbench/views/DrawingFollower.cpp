// SPDX-License-Identifier: MIT

#include "workbench/views/DrawingFollower.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"

#include <algorithm>
#include <vector>

DrawingFollower::DrawingFollower(GV_GraphXViewQt* view, SC_SessionContext& session)
    : QObject(view)
    , _view(view)
    , _session(session)
{
    const TUSceneChangeManager* changes = session.changeManager();
    connect(changes, &TUSceneChangeManager::currentFrameChanged, this, &DrawingFollower::follow);
    connect(changes, &TUSceneChangeManager::nodesChanged, this, &DrawingFollower::follow);
    connect(changes, &TUSceneChangeManager::networkChanged, this, &DrawingFollower::follow);
}

void DrawingFollower::follow()
{
    if (!isOutdated())
        return;
    GraphViewState& state = _states[_view->controller()->uiInfo()->visibleGraphModelNode()];
    state.remember(*_view);
    state.restore(*_view);
}

bool DrawingFollower::isOutdated() const
{
    std::vector<const GV_UiNode*> nodes;
    _view->controller()->uiInfo()->headerNodes(nodes);
    return std::ranges::any_of(nodes, [this](const GV_UiNode* node) {
        const auto* header = static_cast<const GV_UiHeaderNode*>(node);
        const MO_ElementModule* element = header->model();
        if (!element)
            return false;
        const int frame = _session.currentFrameInterface()->currentFrame(element->sceneCommon());
        const CEL_SharedPtr<TD_CelVq3d> model = element->modelAt(frame);
        return model && model->rootNodePtr() != header->rootNode();
    });
}
