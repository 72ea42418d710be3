// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_Node.h"

/// A node that gives the motion of one subnode of the 3D model that feeds it to the network. The
/// subnode is named by its string attribute "Sub_Node_Name".
class HOST_EXPORT MO_KinematicOutputModule : public MO_Node
{
public:
    explicit MO_KinematicOutputModule(const QString& instanceName);

    QString typeName() const override;
    void accept(MO_AbstractModuleVisitor& visitor) override;
};
