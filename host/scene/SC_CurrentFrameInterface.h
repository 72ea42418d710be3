// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <memory>

class MO_BaseContext;
class SC_SceneCommon;
class TUSceneChangeManager;

/// The current frame of each scene of the session. Frames count from 1.
class HOST_EXPORT SC_CurrentFrameInterface
{
public:
    /// The change manager is not owned and must outlive this object.
    explicit SC_CurrentFrameInterface(TUSceneChangeManager* changeManager);
    ~SC_CurrentFrameInterface();

    /// 1 for a scene whose frame was never set, and for null.
    int currentFrame(const SC_SceneCommon* scene) const;
    MO_BaseContext frameContext(const SC_SceneCommon* scene) const;

    /// Moves the scene to the frame and tells it. A frame below 1 is taken as 1.
    void setCurrentFrame(const SC_SceneCommon* scene, int frame);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
