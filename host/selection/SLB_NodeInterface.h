// SPDX-License-Identifier: MIT
#pragma once

#include "host/selection/SLB_SelectedInterface.h"

#include <vector>

/// A selected node and its sub-selection: the ids of the selected parts, in the order in which
/// they were selected. Changes are noted with the change manager and told by it.
class HOST_EXPORT SLB_NodeInterface : public SLB_SelectedInterface
{
public:
    virtual bool hasSubSelection() const = 0;
    virtual bool isSubSelected(int id) const = 0;
    /// In the order of selection.
    virtual const std::vector<int>& subSelectedIds() const = 0;

    /// Adds the id to the sub-selection, or makes it the only one. An id that the node does not
    /// know is ignored; so is adding one that is there.
    virtual void subSelect(int id, bool additive) = 0;
    virtual void subDeselect(int id) = 0;
    virtual void clearSubSelection() = 0;
};
