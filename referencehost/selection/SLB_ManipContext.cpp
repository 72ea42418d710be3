// SPDX-License-Identifier: MIT
#include "host/selection/SLB_ManipContext.h"

#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"

SLB_ManipContext::SLB_ManipContext(SC_SessionContext* session, SC_SceneCommon* scene,
                                   CX_AnimationMode mode, double frame)
    : _session(session)
    , _scene(scene)
    , _mode(mode)
    , _frame(frame)
{
}

double SLB_ManipContext::frame() const
{
    if (_mode == eFixedFrame || !_session)
        return _frame;
    return _session->currentFrameInterface()->currentFrame(_scene) + _frame;
}
