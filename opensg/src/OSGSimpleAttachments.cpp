// SPDX-License-Identifier: MIT
#include <OpenSG/OSGSimpleAttachments.h>

#include <cstring>

namespace osg {

struct NameAttachment
{
    static std::unique_ptr<Char8[]>& of(AttachmentContainer& container) { return container._name; }
};

const Char8* getName(AttachmentContainerPtr container)
{
    return container ? NameAttachment::of(*container).get() : nullptr;
}

void setName(AttachmentContainerPtr container, const std::string& name)
{
    setName(container, name.c_str());
}

void setName(AttachmentContainerPtr container, const Char8* name)
{
    if (!container)
        return;
    // Copied before the old name goes, since the new one may be a part of it.
    std::unique_ptr<Char8[]> copy;
    if (name) {
        const std::size_t size = std::strlen(name) + 1;
        copy = std::make_unique_for_overwrite<Char8[]>(size);
        std::memcpy(copy.get(), name, size);
    }
    NameAttachment::of(*container) = std::move(copy);
}

} // namespace osg
