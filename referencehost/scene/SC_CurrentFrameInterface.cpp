// SPDX-License-Identifier: MIT
#include "host/scene/SC_CurrentFrameInterface.h"

#include "host/scene/MO_BaseContext.h"
#include "host/scene/SC_SceneCommon.h"
#include "host/scene/TUSceneChangeManager.h"

#include <algorithm>
#include <map>

namespace {

constexpr int FirstFrame = 1;

} // namespace

struct SC_CurrentFrameInterface::Private
{
    explicit Private(TUSceneChangeManager* manager)
        : changeManager(manager)
    {
    }

    TUSceneChangeManager* changeManager;
    /// Weak, so that a scene never inherits the frame of one that was at the same address.
    std::map<UT_SharedWeakPtr<SC_SceneCommon>, int> frames;
};

SC_CurrentFrameInterface::SC_CurrentFrameInterface(TUSceneChangeManager* changeManager)
    : d(std::make_unique<Private>(changeManager))
{
}

SC_CurrentFrameInterface::~SC_CurrentFrameInterface() = default;

int SC_CurrentFrameInterface::currentFrame(const SC_SceneCommon* scene) const
{
    const auto it = d->frames.find(scene);
    return it == d->frames.end() ? FirstFrame : it->second;
}

MO_BaseContext SC_CurrentFrameInterface::frameContext(const SC_SceneCommon* scene) const
{
    return {scene, static_cast<double>(currentFrame(scene))};
}

void SC_CurrentFrameInterface::setCurrentFrame(const SC_SceneCommon* scene, int frame)
{
    const int wanted = std::max(frame, FirstFrame);
    if (!scene || wanted == currentFrame(scene))
        return;
    std::erase_if(d->frames, [](const auto& entry) { return entry.first.isNull(); });
    d->frames[scene] = wanted;
    d->changeManager->emitCurrentFrameChanged();
    d->changeManager->notify();
}
