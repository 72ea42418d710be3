// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Lets the calling process take as many bytes and no more. Where an allocation fails that a
/// library would not survive in good order, the process ends with ImportOutOfMemory. False if the
/// system refuses.
bool limitMemory(qint64 bytes);
