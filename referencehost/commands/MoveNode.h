// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"
#include "host/scene/MO_Node.h"

/// Gives a node another position in the group that holds it.
class HOST_EXPORT MoveNode : public CO_Command
{
public:
    /// A null or detached node, or the position that the node has, makes an empty command.
    MoveNode(MO_Node* node, int position);

    bool empty() const override;
    bool execute() override;

private:
    UT_SharedWeakPtr<MO_Node> _node;
    int _otherPosition;
};
