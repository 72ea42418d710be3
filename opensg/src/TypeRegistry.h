// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGFieldContainerType.h>

namespace osg {

/// Every type of the process, and whether the library is started. The types enter and leave by
/// themselves; the list runs through them, so it needs no storage that would have to be
/// initialised before the first of them.
struct TypeRegistry
{
    static void add(FieldContainerType& type);
    static void remove(FieldContainerType& type);

    static void start();
    static void stop();
    static bool isStarted();
};

} // namespace osg
