// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"
#include "host/scene/MO_Node.h"

/// Gives a node of the scene another name.
class HOST_EXPORT RenameNode : public CO_Command
{
public:
    /// A null node, or the name that the node has, makes an empty command.
    RenameNode(MO_Node* node, const QString& name);

    bool empty() const override;
    bool execute() override;

private:
    UT_SharedWeakPtr<MO_Node> _node;
    QString _otherName;
};
