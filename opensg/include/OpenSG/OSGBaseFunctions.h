// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>

namespace osg {

/// Starts the library: from here on the types know their parents and containers can be created.
/// Call it once, before anything else; calling it again does no harm. The arguments are those of
/// main() and may be 0 and null. Returns whether the library is ready.
OSG_CORE_API bool osgInit(Int32 argc, Char8** argv);

/// Ends the library; nothing can be created any more. Containers that are still referenced stay
/// valid until they are released. Returns whether the library had been started.
OSG_CORE_API bool osgExit();

} // namespace osg
