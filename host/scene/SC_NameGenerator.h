// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>

class MO_GroupModule;

/// Makes names that no node of a group has yet.
class HOST_EXPORT SC_NameGenerator
{
public:
    /// The wanted name, or, where a node of the group has it, the wanted name with the first free
    /// number behind it, from the given one on in the given steps. A null group has no nodes.
    static QString uniqueName(const QString& wanted, const MO_GroupModule* group, int firstNumber,
                              int step);
};
