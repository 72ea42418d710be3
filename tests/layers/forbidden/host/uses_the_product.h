// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>
