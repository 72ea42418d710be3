// SPDX-License-Identifier: MIT
#include "referencehost/selection/SelectedNode.h"

SelectedNode::SelectedNode(MO_Node* node, unsigned int orderId)
    : _node(node)
    , _orderId(orderId)
{
}

unsigned int SelectedNode::orderId() const
{
    return _orderId;
}

MO_Node* SelectedNode::selectable() const
{
    return _node;
}

bool SelectedNode::hasSubSelection() const
{
    return false;
}

bool SelectedNode::isSubSelected(int) const
{
    return false;
}

const std::vector<int>& SelectedNode::subSelectedIds() const
{
    return _noIds;
}

void SelectedNode::subSelect(int, bool)
{
}

void SelectedNode::subDeselect(int)
{
}

void SelectedNode::clearSubSelection()
{
}
