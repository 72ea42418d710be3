// SPDX-License-Identifier: MIT
#include "host/selection/SL_SubSelectionUtil.h"

#include "host/selection/SLB_NodeInterface.h"

std::vector<int> SL_SubSelectionUtil::getSubSelectedIds(const SLB_NodeInterface* selected)
{
    return selected ? selected->subSelectedIds() : std::vector<int>();
}

int SL_SubSelectionUtil::getFirstSubSelectedId(const SLB_NodeInterface* selected)
{
    return selected && selected->hasSubSelection() ? selected->subSelectedIds().front() : -1;
}
