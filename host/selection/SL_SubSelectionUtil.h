// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <vector>

class SLB_NodeInterface;

/// Questions about a sub-selection. A null interface has none.
class HOST_EXPORT SL_SubSelectionUtil
{
public:
    /// In the order of selecting.
    static std::vector<int> getSubSelectedIds(const SLB_NodeInterface* selected);
    /// -1 when nothing is sub-selected.
    static int getFirstSubSelectedId(const SLB_NodeInterface* selected);
};
