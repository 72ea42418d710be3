// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The robot of the samples as a file of a test's own, which may have another part or lack one.
namespace ModelFiles {

/// A new file of that name, put in the place of the one before.
enum class Way
{
    Write,
    Rename
};

/// Without a name, nothing is added, or left out. What is added becomes the first child of the
/// torso; what is left out goes with all its children. Both names are those of subnodes. False
/// when the file could not be written.
bool writeRobot(const QString& path, const QString& added = {}, const QString& leftOut = {},
                Way way = Way::Write);

/// A file that no importer can read.
bool writeBroken(const QString& path);

} // namespace ModelFiles
