// SPDX-License-Identifier: MIT
#include "referencehost/commands/MoveNode.h"

#include "host/scene/MO_GroupModule.h"

#include <utility>

MoveNode::MoveNode(MO_Node* node, int position)
    : _node(node)
    , _otherPosition(position)
{
}

bool MoveNode::empty() const
{
    const MO_GroupModule* group = _node.get() ? _node->parentGroup() : nullptr;
    return !group || _otherPosition < 0 ||
           _otherPosition >= static_cast<int>(group->nodes().size()) ||
           group->indexOf(_node.get()) == _otherPosition;
}

bool MoveNode::execute()
{
    MO_GroupModule* group = _node.get() ? _node->parentGroup() : nullptr;
    if (!group)
        return false;
    const int position = std::exchange(_otherPosition, group->indexOf(_node.get()));
    return group->moveNode(_node.get(), position);
}
