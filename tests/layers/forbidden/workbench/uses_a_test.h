// SPDX-License-Identifier: MIT
#pragma once

#include "tests/workbench/WindowTest.h"
