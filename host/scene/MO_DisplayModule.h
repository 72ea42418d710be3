// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_Node.h"

/// A node that collects what the scene shows.
class HOST_EXPORT MO_DisplayModule : public MO_Node
{
public:
    explicit MO_DisplayModule(const QString& instanceName);

    QString typeName() const override;
    void accept(MO_AbstractModuleVisitor& visitor) override;
};
