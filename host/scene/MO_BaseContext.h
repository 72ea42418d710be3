// SPDX-License-Identifier: MIT
#pragma once

class SC_SceneCommon;

/// When and where a question about a scene is asked: which scene, at which frame. A value.
class MO_BaseContext
{
public:
    /// The scene is not owned and may be null.
    MO_BaseContext(const SC_SceneCommon* scene, double frame)
        : _scene(scene)
        , _frame(frame)
    {
    }

    const SC_SceneCommon* scene() const { return _scene; }
    double frame() const { return _frame; }

private:
    const SC_SceneCommon* _scene;
    double _frame;
};
