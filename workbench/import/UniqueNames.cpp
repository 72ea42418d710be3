// SPDX-License-Identifier: MIT
#include "UniqueNames.h"

void UniqueNames::announce(const std::string& name)
{
    m_announced.insert(name);
}

std::string UniqueNames::take(const std::string& name)
{
    if (m_taken.insert(name).second)
        return name;
    // Two names never lead to the same numbered one, since the number ends it; so only the names
    // of the file can be in the way, each of them once.
    int& number = m_nextNumber.try_emplace(name, 2).first->second;
    std::string numbered;
    do {
        numbered = name + "_" + std::to_string(number++);
    } while (m_announced.find(numbered) != m_announced.end());
    return numbered;
}
