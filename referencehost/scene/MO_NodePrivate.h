// SPDX-License-Identifier: MIT
#pragma once

#include "host/attributes/AT_Attr.h"
#include "host/scene/MO_Node.h"

#include <QString>

/// What a node knows of itself and of its surroundings. It owns its ports and attributes; the group
/// that holds the node, its scene and the selection that it is in enter themselves and take
/// themselves out.
struct MO_Node::Private
{
    QString instanceName;
    bool dirty = false;
    double x = 0.0;
    double y = 0.0;
    std::vector<std::unique_ptr<MO_Port>> inPorts;
    std::vector<std::unique_ptr<MO_Port>> outPorts;
    std::vector<std::unique_ptr<AT_Attr>> attrs;
    /// The same for those who iterate.
    std::vector<AT_Attr*> plainAttrs;
    MO_GroupModule* parentGroup = nullptr;
    TUScene* scene = nullptr;
    SL_Selection* selection = nullptr;
    SLB_NodeInterface* selInterface = nullptr;
};
