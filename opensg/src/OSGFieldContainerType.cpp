// SPDX-License-Identifier: MIT
#include <OpenSG/OSGFieldContainerType.h>

#include "TypeRegistry.h"

namespace osg {

FieldContainerType::FieldContainerType(const Char8* name, const Char8* parentName)
    : _name(name)
    , _parentName(parentName)
{
    TypeRegistry::add(*this);
}

FieldContainerType::~FieldContainerType()
{
    TypeRegistry::remove(*this);
}

} // namespace osg
