// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

class CO_OrCommand;
class SC_SceneCommon;
class SC_SessionContext;

/// To what the frame of a manipulation is relative.
enum CX_AnimationMode
{
    /// To the beginning: it is the frame itself.
    eFixedFrame = 0,
    /// To the current frame, whatever that is when it is asked for.
    eAtCurrentFrame = 1
};

/// Where and when a manipulation takes place, and the macro that its commands are recorded into.
class HOST_EXPORT SLB_ManipContext
{
public:
    /// Neither the session nor the scene is owned.
    SLB_ManipContext(SC_SessionContext* session, SC_SceneCommon* scene, CX_AnimationMode mode,
                     double frame);

    SC_SessionContext* session() const { return _session; }
    SC_SceneCommon* scene() const { return _scene; }
    /// The frame of the scene that is meant.
    double frame() const;

    /// The macro is not owned; null when none is attached. A later one takes the place of it.
    CO_OrCommand* macro() const { return _macro; }
    void attachMacro(CO_OrCommand* macro) { _macro = macro; }

private:
    SC_SessionContext* _session;
    SC_SceneCommon* _scene;
    CX_AnimationMode _mode;
    double _frame;
    CO_OrCommand* _macro = nullptr;
};
