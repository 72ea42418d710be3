// SPDX-License-Identifier: MIT

#include "graphview/GV_AppearanceRevision.h"

namespace {

std::uint64_t revision = 0;

} // namespace

std::uint64_t GV_AppearanceRevision::current()
{
    return revision;
}

void GV_AppearanceRevision::advance()
{
    ++revision;
}
