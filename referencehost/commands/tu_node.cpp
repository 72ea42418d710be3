// SPDX-License-Identifier: MIT
#include "host/commands/tu_node.h"

#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/scene/SceneWalk.h"

namespace tu_node {

AddSubNodeCmd::AddSubNodeCmd(MO_GroupModule* group, MO_Node* node)
    : _group(group)
    , _node(node)
    , _held(node)
{
}

AddSubNodeCmd::~AddSubNodeCmd() = default;

bool AddSubNodeCmd::empty() const
{
    return !_group.get() || !_node.get();
}

bool AddSubNodeCmd::execute()
{
    auto* group = dynamic_cast<MO_GroupModule*>(_group.get());
    if (!group || !_held)
        return false;
    MO_Node* node = group->insertNode(std::move(_held));
    if (TUSceneChangeManager* changes = changeManagerOf(*node))
        changes->emitNodeChanged(node);
    return true;
}

bool AddSubNodeCmd::undo()
{
    MO_GroupModule* group = _node.get() ? _node->parentGroup() : nullptr;
    if (!group)
        return false;
    _held = group->takeNode(_node.get());
    return _held != nullptr;
}

LinkCmd::LinkCmd(MO_Node* receiver, int inputPort, MO_Node* source, int outputPort, MO_Port*)
    : _receiver(receiver)
    , _source(source)
    , _inputPort(inputPort)
    , _outputPort(outputPort)
{
}

bool LinkCmd::execute()
{
    MO_Port* input = _receiver.get() ? _receiver->inPort(_inputPort) : nullptr;
    MO_Port* output = _source.get() ? _source->outPort(_outputPort) : nullptr;
    if (!input || !output)
        return false;
    const MO_Port* previous = input->srcPort();
    if (!MO_Port::link(output, input))
        return false;
    _previous = UT_SharedWeakPtr<MO_Node>(previous ? previous->node() : nullptr);
    _previousPort = -1;
    for (int i = 0; previous && i < previous->node()->nOutPorts(); ++i) {
        if (previous->node()->outPort(i) == previous)
            _previousPort = i;
    }
    return true;
}

bool LinkCmd::undo()
{
    MO_Port* input = _receiver.get() ? _receiver->inPort(_inputPort) : nullptr;
    return MO_Port::link(_previous.get() ? _previous->outPort(_previousPort) : nullptr, input);
}

} // namespace tu_node
