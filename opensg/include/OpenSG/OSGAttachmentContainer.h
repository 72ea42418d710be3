// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainer.h>

#include <memory>

namespace osg {

class AttachmentContainer;
typedef FCPtr<FieldContainerPtr, AttachmentContainer> AttachmentContainerPtr;
typedef RefPtr<AttachmentContainerPtr> AttachmentContainerRefPtr;

/// A container that things can be attached to. The one attachment so far is the name, reached
/// through OSGSimpleAttachments.h; the container owns it.
class OSG_CORE_API AttachmentContainer : public FieldContainer
{
public:
    typedef AttachmentContainerPtr Ptr;

    static constexpr BitVector AttachmentsFieldMask = BitVector(1) << 1;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

protected:
    AttachmentContainer() = default;
    ~AttachmentContainer() override;

private:
    // A friend function would be found by every caller that has this header, so a class it is.
    friend struct NameAttachment;

    std::unique_ptr<Char8[]> _name;
};

} // namespace osg
