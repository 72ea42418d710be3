// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>

#include <string>

namespace osg {

/// The name of a node or a core. Null if there is no container or if it has no name; an empty name
/// is a name. The characters belong to the container and last until it is renamed or dies.
OSG_CORE_API const Char8* getName(AttachmentContainerPtr container);

/// Names a node or a core; each has a name of its own. The characters are copied. A null string
/// takes the name away; a null container is ignored.
OSG_CORE_API void setName(AttachmentContainerPtr container, const std::string& name);
OSG_CORE_API void setName(AttachmentContainerPtr container, const Char8* name);

} // namespace osg
