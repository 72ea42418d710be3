// SPDX-License-Identifier: MIT
#include <OpenSG/OSGFieldContainer.h>

namespace osg {

bool FieldContainerPtr::hasType(const FieldContainerPtr& pointer, const FieldContainerType& type)
{
    return pointer && pointer->getType().isDerivedFrom(type);
}

void addRefCP(const FieldContainerPtr& pointer)
{
    if (pointer)
        ++pointer->_references;
}

void subRefCP(const FieldContainerPtr& pointer)
{
    if (pointer && --pointer->_references <= 0)
        FieldContainer::destroy(pointer.getCPtr());
}

void beginEditCP(const FieldContainerPtr&, BitVector, UInt32)
{
}

void endEditCP(const FieldContainerPtr& pointer, BitVector whichField, UInt32 origin)
{
    if (pointer)
        pointer->changed(whichField, origin);
}

} // namespace osg
