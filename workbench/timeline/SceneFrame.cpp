// SPDX-License-Identifier: MIT
#include "workbench/timeline/SceneFrame.h"

#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"

#include <algorithm>

int SceneFrame::current(HostSession& session)
{
    return session.context().currentFrameInterface()->currentFrame(session.currentScene());
}

void SceneFrame::goTo(HostSession& session, int frame)
{
    const TUScene* scene = session.currentScene();
    if (!scene || std::max(1, frame) == current(session))
        return;
    session.context().currentFrameInterface()->setCurrentFrame(scene, frame);
    session.context().changeManager()->notify();
}
