// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_Node.h"

#include <QString>

/// What a node knows of itself and of its surroundings. Nothing here is owned: the group that holds
/// the node, its scene and the selection that it is in enter themselves and take themselves out.
struct MO_Node::Private
{
    QString instanceName;
    double x = 0.0;
    double y = 0.0;
    MO_GroupModule* parentGroup = nullptr;
    TUScene* scene = nullptr;
    SL_Selection* selection = nullptr;
    SLB_NodeInterface* selInterface = nullptr;
};
