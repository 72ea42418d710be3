// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// A model that is put together part by part and then written as one glTF 2.0 text with its
/// buffer inside. Lengths are metres, y is up and the models look along z. The text depends on
/// nothing but the calls that were made, so it is the same on every machine.
class GltfModel
{
public:
    using Vector = std::array<double, 3>;
    /// x, y, z, w
    using Quaternion = std::array<double, 4>;

    struct Mesh
    {
        std::vector<Vector> positions;
        std::vector<Vector> normals;
        std::vector<std::uint16_t> indices;
    };

    static constexpr int none = -1;

    /// A colour is red, green and blue from 0 to 1. The number is what addMesh() takes.
    int addMaterial(const std::string& name, const Vector& color, double metallic);
    int addMesh(const std::string& name, const Mesh& mesh, int material);
    /// Below the parent, or as a root if that is none. Its translation may be left out, and so may
    /// its mesh; a node with neither only groups.
    int addNode(const std::string& name, int parent, const Vector& translation = {},
                int mesh = none);
    void setRotation(int node, const Quaternion& rotation);
    /// Times are seconds; there is a rotation for each.
    void animateRotation(int node, const std::vector<double>& times,
                         const std::vector<Quaternion>& rotations);
    void animateTranslation(int node, const std::vector<double>& times,
                            const std::vector<Vector>& translations);

    /// The whole file. The animation, if there is one, has the given name.
    std::string toText(const std::string& animationName) const;

    /// A turn around the axis, which must have the length 1.
    static Quaternion turn(const Vector& axis, double degrees);

private:
    struct Node
    {
        std::string name;
        Vector translation;
        Quaternion rotation;
        int mesh;
        std::vector<int> children;
    };
    struct Channel
    {
        int node;
        std::string path;
        int input;
        int output;
    };

    int addAccessor(const std::vector<double>& values, int components, bool bounds, int target);
    int addIndices(const std::vector<std::uint16_t>& indices);
    int finishAccessor(std::size_t start, std::size_t count, const std::string& rest, int target);
    std::string nodeText(const Node& node) const;

    std::vector<Node> _nodes;
    std::vector<int> _roots;
    std::vector<std::string> _meshes;
    std::vector<std::string> _materials;
    std::vector<std::string> _accessors;
    std::vector<std::string> _views;
    std::vector<Channel> _channels;
    std::vector<std::uint8_t> _buffer;
};
