// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_GraphXViewQt.h"
