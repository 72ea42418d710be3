// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

class MO_Node;

/// What a selection knows about one of its members. Owned by the selection, and gone as soon as
/// the member leaves it.
class HOST_EXPORT SLB_SelectedInterface
{
public:
    SLB_SelectedInterface(const SLB_SelectedInterface&) = delete;
    SLB_SelectedInterface& operator=(const SLB_SelectedInterface&) = delete;
    virtual ~SLB_SelectedInterface();

    /// Counts up with every member that is added, so the member selected first has the smallest.
    virtual unsigned int orderId() const = 0;
    /// The selected node; never null.
    virtual MO_Node* selectable() const = 0;

protected:
    SLB_SelectedInterface() = default;
};
