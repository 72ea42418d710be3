// SPDX-License-Identifier: MIT
#pragma once

struct aiNode;
class AssimpReader;

enum class NodeRole
{
    Key,
    Group,
    Transform
};

/// Decides what the nodes of a file become. Keeps a reference to the reader, which must outlive it.
class NodeRoles
{
public:
    explicit NodeRoles(const AssimpReader& reader);

    /// The parent is null for the root. A node's own link to its parent is not used: some readers
    /// leave it wrong.
    NodeRole roleOf(const aiNode& node, const aiNode* parent) const;

    /// Whether the matrix moves anything, or cannot be used because of numbers that are not finite.
    static bool hasMatrix(const aiNode& node);

private:
    bool carriesTransform(const aiNode& node, const aiNode* parent) const;
    bool isPivotOf(const aiNode& helper, const aiNode& node) const;

    const AssimpReader& _reader;
};
