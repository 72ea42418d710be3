// SPDX-License-Identifier: MIT
#pragma once

#include "SGV_Graph3DView.h"
