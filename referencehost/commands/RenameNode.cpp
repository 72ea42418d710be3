// SPDX-License-Identifier: MIT
#include "referencehost/commands/RenameNode.h"

#include <utility>

RenameNode::RenameNode(MO_Node* node, const QString& name)
    : _node(node)
    , _otherName(name)
{
}

bool RenameNode::empty() const
{
    return !_node.get() || _node->instanceName() == _otherName;
}

bool RenameNode::execute()
{
    if (!_node.get())
        return false;
    const QString name = std::exchange(_otherName, _node->instanceName());
    _node->setInstanceName(name);
    return true;
}
