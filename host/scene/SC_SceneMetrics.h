// SPDX-License-Identifier: MIT
#pragma once

/// How the units of a scene relate to those of its models. A value.
struct SC_SceneMetrics
{
    /// Units of a model that make one unit of the scene.
    double modelUnits = 1.0;
};
