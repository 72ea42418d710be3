// SPDX-License-Identifier: MIT
#include "host/selection/SLB_SelectedInterface.h"

SLB_SelectedInterface::~SLB_SelectedInterface() = default;
