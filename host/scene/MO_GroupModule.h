// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/MO_Node.h"

#include <vector>

/// A node that owns other nodes, in order.
class HOST_EXPORT MO_GroupModule : public MO_Node
{
public:
    explicit MO_GroupModule(const QString& instanceName);
    ~MO_GroupModule() override;

    QString typeName() const override;
    void accept(MO_AbstractModuleVisitor& visitor) override;

    /// The nodes in order; owned by the group.
    std::vector<MO_Node*> nodes() const;
    /// The position of the node in this group; -1 when it is not in it.
    int indexOf(const MO_Node* node) const;

    /// Takes the node in before the given position; -1 or a position past the end appends.
    /// Returns the node. A null node is ignored and gives null. The node must not hold this group.
    MO_Node* insertNode(std::unique_ptr<MO_Node> node, int position = -1);
    /// Gives the node up, and with it what it holds, unselected; null when it is not in this
    /// group.
    std::unique_ptr<MO_Node> takeNode(MO_Node* node);
    /// Gives the node another position among the others; one past the end means the last. False
    /// when it is not in this group, or stands there already.
    bool moveNode(MO_Node* node, int position);

private:
    std::vector<std::unique_ptr<MO_Node>> _nodes;
};
