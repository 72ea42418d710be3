// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>

/// Gives every node of a model a name that no other has. First all names of the file are
/// announced, then each node takes one: the first to ask for a name gets it, the others get it
/// with a number ("Arm_2") that makes it differ from every name of the file. Any number of equal
/// names takes time in proportion to their number.
class UniqueNames
{
public:
    void announce(const std::string& name);
    /// The name should have been announced; any bytes will do.
    std::string take(const std::string& name);

private:
    std::unordered_set<std::string> _announced;
    std::unordered_set<std::string> _taken;
    std::unordered_map<std::string, int> _nextNumber;
};
