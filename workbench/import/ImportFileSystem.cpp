// SPDX-License-Identifier: MIT
#include "workbench/import/ImportFileSystem.h"

#include <cstring>
#include <filesystem>

bool ImportFileSystem::Exists(const char* path) const
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

Assimp::IOStream* ImportFileSystem::Open(const char* path, const char* mode)
{
    if (std::strpbrk(mode, "wa+") || !Exists(path))
        return nullptr;
    return DefaultIOSystem::Open(path, mode);
}
