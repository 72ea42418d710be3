// SPDX-License-Identifier: MIT
#pragma once

#include "subnodetree/SGV_Graph3DView.h"
