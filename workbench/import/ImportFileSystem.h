// SPDX-License-Identifier: MIT
#pragma once

#include <assimp/DefaultIOSystem.h>

/// Lets the reading library open regular files for reading and nothing else. A model may name any
/// path for its companion files, and a device or a pipe would block the import for ever.
class ImportFileSystem : public Assimp::DefaultIOSystem
{
public:
    bool Exists(const char* path) const override;
    /// Null for anything that is not to be opened. The caller owns the stream.
    Assimp::IOStream* Open(const char* path, const char* mode) override;
};
