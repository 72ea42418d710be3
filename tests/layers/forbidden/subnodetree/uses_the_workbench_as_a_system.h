// SPDX-License-Identifier: MIT
#pragma once

#include <workbench/window/WorkbenchWindow.h>
