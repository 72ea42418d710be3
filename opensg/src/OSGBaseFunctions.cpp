// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>

#include "TypeRegistry.h"

namespace osg {

bool osgInit(Int32, Char8**)
{
    TypeRegistry::start();
    return true;
}

bool osgExit()
{
    const bool started = TypeRegistry::isStarted();
    TypeRegistry::stop();
    return started;
}

} // namespace osg
