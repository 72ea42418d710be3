// SPDX-License-Identifier: MIT
#include "workbench/import/UniqueNames.h"

void UniqueNames::announce(const std::string& name)
{
    _announced.insert(name);
}

std::string UniqueNames::take(const std::string& name)
{
    if (_taken.insert(name).second)
        return name;
    // Two names never lead to the same numbered one, since the number ends it; so only the names
    // of the file can be in the way, each of them once.
    int& number = _nextNumber.try_emplace(name, 2).first->second;
    std::string numbered;
    do {
        numbered = name + "_" + std::to_string(number++);
    } while (_announced.find(numbered) != _announced.end());
    return numbered;
}
