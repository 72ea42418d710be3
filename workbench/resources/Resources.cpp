// SPDX-License-Identifier: MIT

#include "workbench/resources/Resources.h"

#include <QtGlobal>

void initWorkbenchResources()
{
    // The linker leaves out the resources of a static library that nobody names.
    Q_INIT_RESOURCE(workbench);
}
