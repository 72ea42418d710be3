// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_ElementModule.h"

#include <map>

class TD_CelVq3d;

/// Which model is shown at which frame: ranges of frames that never overlap, each with a model.
/// Frames outside the ranges show nothing. Part of an element.
class Drawings
{
public:
    using Model = CEL_SharedPtr<TD_CelVq3d>;

    /// Shows the model from the first to the last frame, both included, and cuts the ranges that
    /// were there; null only cuts. False when that changed nothing.
    bool expose(int first, int last, const Model& model);

    /// Null when the frame shows nothing.
    Model at(int frame) const;
    std::vector<MO_ElementModule::Exposure> exposures() const;

private:
    struct Range
    {
        int last;
        Model model;
    };

    bool cut(int first, int last);

    /// By first frame.
    std::map<int, Range> _ranges;
};
