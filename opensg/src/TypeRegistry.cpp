// SPDX-License-Identifier: MIT
#include "TypeRegistry.h"

namespace osg {

namespace {

constinit FieldContainerType* first = nullptr;
constinit bool started = false;

} // namespace

void TypeRegistry::add(FieldContainerType& type)
{
    type.m_nextRegistered = first;
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
        if (other->m_parent == &type)
            other->m_parent = nullptr;
        if (other == &type)
            *link = other->m_nextRegistered;
        else
            link = &other->m_nextRegistered;
    }
}

void TypeRegistry::start()
{
    started = true;
    for (FieldContainerType* type = first; type; type = type->m_nextRegistered) {
        FieldContainerType* parent = type->m_parent ? nullptr : first;
        while (parent && !(parent->m_name == type->m_parentName))
            parent = parent->m_nextRegistered;
        if (parent)
            type->m_parent = parent;
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
