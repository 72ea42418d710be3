// SPDX-License-Identifier: MIT
#include "host/scene/MO_Port.h"

#include "host/scene/MO_Node.h"
#include "host/scene/MO_PassThroughModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/scene/SceneWalk.h"

#include <algorithm>
#include <set>

struct MO_Port::Private
{
    MO_Node* node;
    Direction direction;
    MO_Port* source = nullptr;
    std::vector<MO_Port*> destinations;
};

MO_Port::MO_Port(MO_Node* node, Direction direction)
    : d(std::make_unique<Private>(Private{node, direction, nullptr, {}}))
{
}

MO_Port::~MO_Port()
{
    if (d->source)
        std::erase(d->source->d->destinations, this);
    for (MO_Port* destination : d->destinations)
        destination->d->source = nullptr;
}

MO_Node* MO_Port::node() const
{
    return d->node;
}

MO_Port::Direction MO_Port::direction() const
{
    return d->direction;
}

MO_Port* MO_Port::srcPort() const
{
    return d->source;
}

std::vector<MO_Port*> MO_Port::dstPorts() const
{
    return d->destinations;
}

std::vector<MO_Port*> MO_Port::realDstPorts() const
{
    // A walk in depth, along a path of ports, and not recursive: chains may be long. A ring of
    // nodes that pass on to each other ends where it began.
    struct Step
    {
        const MO_Port* port;
        std::size_t nextDestination = 0;
        int nextOutput = 0;
    };
    std::vector<MO_Port*> found;
    std::set<const MO_Port*> path{this};
    std::vector<Step> steps{{this}};
    while (!steps.empty()) {
        Step& step = steps.back();
        const std::vector<MO_Port*>& destinations = step.port->d->destinations;
        if (step.nextDestination == destinations.size()) {
            path.erase(step.port);
            steps.pop_back();
            continue;
        }
        MO_Port* destination = destinations[step.nextDestination];
        const MO_Node* receiver = destination->node();
        const bool isInScene = d->node->scene() && receiver->scene() == d->node->scene();
        const bool passesOn = dynamic_cast<const MO_PassThroughModule*>(receiver);
        if (!isInScene || !passesOn || step.nextOutput == receiver->nOutPorts()) {
            if (isInScene && !passesOn)
                found.push_back(destination);
            ++step.nextDestination;
            step.nextOutput = 0;
            continue;
        }
        const MO_Port* passedOn = receiver->outPort(step.nextOutput++);
        if (path.insert(passedOn).second)
            steps.push_back({passedOn});
    }
    return found;
}

bool MO_Port::link(MO_Port* output, MO_Port* input)
{
    if (!input || input->d->direction != eInput || (output && output->d->direction != eOutput) ||
        input->d->source == output)
        return false;
    MO_Port* previous = std::exchange(input->d->source, output);
    if (previous)
        std::erase(previous->d->destinations, input);
    if (output)
        output->d->destinations.push_back(input);
    for (const MO_Port* changed :
         {static_cast<const MO_Port*>(input), static_cast<const MO_Port*>(output),
          static_cast<const MO_Port*>(previous)}) {
        if (!changed)
            continue;
        if (TUSceneChangeManager* changes = changeManagerOf(*changed->d->node))
            changes->emitNetworkChanged(changed->d->node);
    }
    return true;
}
