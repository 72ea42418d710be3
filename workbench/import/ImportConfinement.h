// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Takes from the calling process whatever reading a file does not need, for good. The file may
/// turn the reading library against its user.
namespace ImportConfinement {

/// The memory is in bytes; the time in seconds of work. From now on the process writes no file,
/// leaves no core, gains no rights, and ends with one of ImportExit when a limit is reached or the
/// program that takes its answer, through the given pipe, is gone. False if the system refuses a
/// part of it.
bool enter(qint64 memory, int seconds, int answer);

} // namespace ImportConfinement
