// SPDX-License-Identifier: MIT
#pragma once

#include "GltfModel.h"

/// A jointed robot of some forty parts, with plain groups between them and names of every length.
GltfModel makeRobot();

/// A mechanical bird that flaps its wings and looks around.
GltfModel makeCrane();
