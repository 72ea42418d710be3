// SPDX-License-Identifier: MIT
#include "TypeRegistry.h"

namespace osg {

namespace {

constinit FieldContainerType* first = nullptr;
constinit bool started = false;

} // namespace

void TypeRegistry::add(FieldContainerType& type)
{
    type._nextRegistered = first;
    first = &type;
    // A library that is loaded late brings types whose parents may follow them.
    if (started)
        start();
}

void TypeRegistry::remove(FieldContainerType& type)
{
    FieldContainerType** link = &first;
    while (*link) {
        FieldContainerType* const other = *link;
        if (other->_parent == &type)
            other->_parent = nullptr;
        if (other == &type)
            *link = other->_nextRegistered;
        else
            link = &other->_nextRegistered;
    }
}

void TypeRegistry::start()
{
    started = true;
    for (FieldContainerType* type = first; type; type = type->_nextRegistered) {
        FieldContainerType* parent = type->_parent ? nullptr : first;
        while (parent && !(parent->_name == type->_parentName))
            parent = parent->_nextRegistered;
        if (parent)
            type->_parent = parent;
    }
}

void TypeRegistry::stop()
{
    started = false;
}

bool TypeRegistry::isStarted()
{
    return started;
}

} // namespace osg
