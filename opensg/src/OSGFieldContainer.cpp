// SPDX-License-Identifier: MIT
#include <OpenSG/OSGFieldContainer.h>

#include "TypeRegistry.h"

#include <vector>

namespace osg {

namespace {

FieldContainerType type("FieldContainer");

/// What died while another container was being destroyed.
thread_local constinit std::vector<FieldContainer*>* dead = nullptr;

} // namespace

FieldContainer::~FieldContainer() = default;

FieldContainerType& FieldContainer::getClassType()
{
    return type;
}

FieldContainerType& FieldContainer::getType()
{
    return type;
}

const FieldContainerType& FieldContainer::getType() const
{
    return type;
}

void FieldContainer::changed(BitVector, UInt32)
{
}

bool FieldContainer::canCreate()
{
    return TypeRegistry::isStarted();
}

void FieldContainer::destroy(FieldContainer* container)
{
    // Destructors give back references, and a hierarchy may be deeper than the stack, so what
    // dies meanwhile waits here for its turn.
    if (dead) {
        dead->push_back(container);
        return;
    }
    std::vector<FieldContainer*> waiting;
    dead = &waiting;
    delete container;
    while (!waiting.empty()) {
        FieldContainer* const next = waiting.back();
        waiting.pop_back();
        delete next;
    }
    dead = nullptr;
}

} // namespace osg
