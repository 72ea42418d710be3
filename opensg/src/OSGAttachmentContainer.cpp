// SPDX-License-Identifier: MIT
#include <OpenSG/OSGAttachmentContainer.h>

namespace osg {

namespace {
FieldContainerType type("AttachmentContainer", "FieldContainer");
} // namespace

FieldContainerType& AttachmentContainer::getClassType()
{
    return type;
}

FieldContainerType& AttachmentContainer::getType()
{
    return type;
}

const FieldContainerType& AttachmentContainer::getType() const
{
    return type;
}

AttachmentContainer::~AttachmentContainer() = default;

} // namespace osg
