// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_Node.h"

/// A node that passes on what it receives, to keep a network tidy.
class HOST_EXPORT MO_PassThroughModule : public MO_Node
{
public:
    explicit MO_PassThroughModule(const QString& instanceName);

    QString typeName() const override;
    void accept(MO_AbstractModuleVisitor& visitor) override;
};
