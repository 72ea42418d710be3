// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_Node.h"

/// A node that moves what hangs below it. It has nothing of its own to show.
class HOST_EXPORT MO_PegModule : public MO_Node
{
public:
    explicit MO_PegModule(const QString& instanceName);

    QString typeName() const override;
    void accept(MO_AbstractModuleVisitor& visitor) override;
};
