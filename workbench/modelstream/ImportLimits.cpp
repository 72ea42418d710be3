// SPDX-License-Identifier: MIT
#include "workbench/modelstream/ImportLimits.h"

#include <algorithm>
#include <unistd.h>

qint64 ImportLimits::standardMemory()
{
    constexpr qint64 enough = qint64(8) * 1024 * 1024 * 1024;
    const qint64 all = qint64(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE);
    return all > 0 ? std::min(enough, all / 4 * 3) : enough;
}
