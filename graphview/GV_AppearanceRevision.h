// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Counts the changes of the colours and the font that all graph views share, so that a picture
/// that was kept can be told to be out of date.
namespace GV_AppearanceRevision {

std::uint64_t current();
void advance();

} // namespace GV_AppearanceRevision
