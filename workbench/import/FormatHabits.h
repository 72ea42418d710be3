// SPDX-License-Identifier: MIT
#pragma once

#include <string>

struct aiMesh;
struct aiNode;
struct aiImporterDesc;

/// Knows what the readers of the formats add of their own: names for nodes and meshes that have
/// none, helper nodes, and a root. Names are bytes in whatever encoding the file has.
class FormatHabits
{
public:
    FormatHabits() = default;
    /// The description may be null. The path is the one that the reader was given.
    FormatHabits(const aiImporterDesc* reader, std::string path);

    bool isCollada() const { return _family == Family::Collada; }

    /// The name that the file gives the node; empty if it gives none.
    std::string nodeName(const aiNode& node) const;
    std::string meshName(const aiMesh& mesh) const;

    /// Whether the reader inserted the node that has this name.
    bool isHelper(const std::string& name) const;
    /// Whether the root is one that the reader put above those of the file.
    bool isAddedRoot(const std::string& rootName) const;

private:
    enum class Family
    {
        Other,
        Collada,
        Fbx,
        Gltf2,
        Ifc
    };

    Family _family = Family::Other;
    std::string _path;
};
