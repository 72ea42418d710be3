// SPDX-License-Identifier: MIT
#pragma once

#include "host/selection/SLB_NodeInterface.h"

/// A selected node without parts: it knows no ids, so it never has a sub-selection. Owned by the
/// selection.
class SelectedNode : public SLB_NodeInterface
{
public:
    SelectedNode(MO_Node* node, unsigned int orderId);

    unsigned int orderId() const override;
    MO_Node* selectable() const override;

    bool hasSubSelection() const override;
    bool isSubSelected(int id) const override;
    const std::vector<int>& subSelectedIds() const override;
    void subSelect(int id, bool additive) override;
    void subDeselect(int id) override;
    void clearSubSelection() override;

private:
    MO_Node* _node;
    unsigned int _orderId;
    std::vector<int> _noIds;
};
