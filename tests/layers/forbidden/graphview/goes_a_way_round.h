// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/../workbench/window/WorkbenchWindow.h"
