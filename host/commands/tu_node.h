// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_Port.h"
#include "host/scene/UT_SharedWeakPtr.h"

#include <memory>

/// Commands on the nodes of a scene.
namespace tu_node {

/// Takes a node into a group, as its last one.
class HOST_EXPORT AddSubNodeCmd : public CO_Command
{
public:
    /// Takes ownership of the node. With a null group or node it does nothing.
    AddSubNodeCmd(MO_GroupModule* group, MO_Node* node);
    ~AddSubNodeCmd() override;

    bool empty() const override;
    bool execute() override;
    bool undo() override;

private:
    UT_SharedWeakPtr<MO_Node> _group;
    UT_SharedWeakPtr<MO_Node> _node;
    /// Null while the node is in the group.
    std::unique_ptr<MO_Node> _held;
};

/// Feeds an input port of one node from an output port of another.
class HOST_EXPORT LinkCmd : public CO_Command
{
public:
    /// The receiver's input port and the source's output port, by index. The last argument, a port
    /// to insert between the two, is not used by this host.
    LinkCmd(MO_Node* receiver, int inputPort, MO_Node* source, int outputPort,
            MO_Port* between = nullptr);

    /// False, with nothing changed, when a node is gone, a port does not exist, or they are linked.
    bool execute() override;
    bool undo() override;

private:
    UT_SharedWeakPtr<MO_Node> _receiver;
    UT_SharedWeakPtr<MO_Node> _source;
    int _inputPort;
    int _outputPort;
    /// What fed the input before.
    UT_SharedWeakPtr<MO_Node> _previous;
    int _previousPort = -1;
};

} // namespace tu_node
