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

    void collect(std::vector<MO_Port*>& found, std::set<const MO_Port*>& underWay) const;
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

/// Follows the links; a ring of nodes that pass on to each other ends where it began.
void MO_Port::Private::collect(std::vector<MO_Port*>& found,
                               std::set<const MO_Port*>& underWay) const
{
    for (MO_Port* destination : destinations) {
        MO_Node* receiver = destination->node();
        if (!node->scene() || receiver->scene() != node->scene())
            continue;
        if (!dynamic_cast<MO_PassThroughModule*>(receiver)) {
            found.push_back(destination);
            continue;
        }
        for (int i = 0; i < receiver->nOutPorts(); ++i) {
            const MO_Port* passedOn = receiver->outPort(i);
            if (underWay.insert(passedOn).second) {
                passedOn->d->collect(found, underWay);
                underWay.erase(passedOn);
            }
        }
    }
}

std::vector<MO_Port*> MO_Port::realDstPorts() const
{
    std::vector<MO_Port*> found;
    std::set<const MO_Port*> underWay{this};
    d->collect(found, underWay);
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
