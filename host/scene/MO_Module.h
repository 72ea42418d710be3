// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>

class MO_AbstractModuleVisitor;

/// Anything that a scene is made of. Modules are created detached and become part of a scene when
/// a group takes them in.
class HOST_EXPORT MO_Module
{
public:
    MO_Module() = default;
    MO_Module(const MO_Module&) = delete;
    MO_Module& operator=(const MO_Module&) = delete;
    virtual ~MO_Module();

    /// The key under which the kind of module is known to scene files and factories.
    virtual QString typeName() const = 0;

    /// Calls the visitor's operation for this kind of module, for this module alone.
    virtual void accept(MO_AbstractModuleVisitor& visitor) = 0;
};
