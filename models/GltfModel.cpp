// SPDX-License-Identifier: MIT
#include "GltfModel.h"

#include "GltfText.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>

using namespace GltfText;

namespace {

// Numbers as the glTF format gives them.
constexpr int floatType = 5126;
constexpr int unsignedShortType = 5123;
constexpr int vertexTarget = 34962;
constexpr int indexTarget = 34963;
constexpr int noTarget = 0;

} // namespace

int GltfModel::addMaterial(const std::string& name, const Vector& color, double metallic)
{
    _materials.push_back(
        joined({"{\"name\":", quoted(name), ",\"pbrMetallicRoughness\":{\"baseColorFactor\":",
                text(std::array{color[0], color[1], color[2], 1.0}),
                ",\"metallicFactor\":", text(metallic), ",\"roughnessFactor\":0.5}}"}));
    return static_cast<int>(_materials.size()) - 1;
}

int GltfModel::addMesh(const std::string& name, const Mesh& mesh, int material)
{
    std::vector<double> positions;
    std::vector<double> normals;
    for (const Vector& position : mesh.positions)
        positions.insert(positions.end(), position.begin(), position.end());
    for (const Vector& normal : mesh.normals)
        normals.insert(normals.end(), normal.begin(), normal.end());
    const int positionsAt = addAccessor(positions, 3, true, vertexTarget);
    const int normalsAt = addAccessor(normals, 3, false, vertexTarget);
    const int indicesAt = addIndices(mesh.indices);
    _meshes.push_back(joined(
        {"{\"name\":", quoted(name),
         ",\"primitives\":[{\"attributes\":{\"POSITION\":", std::to_string(positionsAt),
         ",\"NORMAL\":", std::to_string(normalsAt), "},\"indices\":", std::to_string(indicesAt),
         ",\"material\":", std::to_string(material), "}]}"}));
    return static_cast<int>(_meshes.size()) - 1;
}

int GltfModel::addNode(const std::string& name, int parent, const Vector& translation, int mesh)
{
    const int node = static_cast<int>(_nodes.size());
    _nodes.push_back({name, translation, {0, 0, 0, 1}, mesh, {}});
    (parent == none ? _roots : _nodes[parent].children).push_back(node);
    return node;
}

void GltfModel::setRotation(int node, const Quaternion& rotation)
{
    _nodes[node].rotation = rotation;
}

void GltfModel::animateRotation(int node, const std::vector<double>& times,
                                const std::vector<Quaternion>& rotations)
{
    std::vector<double> values;
    for (const Quaternion& rotation : rotations)
        values.insert(values.end(), rotation.begin(), rotation.end());
    const int input = addAccessor(times, 1, true, noTarget);
    _channels.push_back({node, "rotation", input, addAccessor(values, 4, false, noTarget)});
}

void GltfModel::animateTranslation(int node, const std::vector<double>& times,
                                   const std::vector<Vector>& translations)
{
    std::vector<double> values;
    for (const Vector& translation : translations)
        values.insert(values.end(), translation.begin(), translation.end());
    const int input = addAccessor(times, 1, true, noTarget);
    _channels.push_back({node, "translation", input, addAccessor(values, 3, false, noTarget)});
}

int GltfModel::addAccessor(const std::vector<double>& values, int components, bool bounds,
                           int target)
{
    const std::size_t start = _buffer.size();
    for (const double value : values) {
        const auto bits = std::bit_cast<std::uint32_t>(rounded(value));
        for (int shift = 0; shift < 32; shift += 8)
            _buffer.push_back(static_cast<std::uint8_t>(bits >> shift));
    }
    static constexpr const char* types[] = {"", "SCALAR", "VEC2", "VEC3", "VEC4"};
    std::string rest = joined({",\"componentType\":", std::to_string(floatType),
                               ",\"type\":", quoted(types[components])});
    if (bounds) {
        std::string low;
        std::string high;
        for (int component = 0; component < components; ++component) {
            double least = values[component];
            double most = least;
            for (std::size_t at = component; at < values.size(); at += components) {
                least = std::min(least, values[at]);
                most = std::max(most, values[at]);
            }
            low += joined({low.empty() ? "" : ",", text(least)});
            high += joined({high.empty() ? "" : ",", text(most)});
        }
        rest += joined({",\"min\":[", low, "],\"max\":[", high, "]"});
    }
    return finishAccessor(start, values.size() / components, rest, target);
}

int GltfModel::addIndices(const std::vector<std::uint16_t>& indices)
{
    const std::size_t start = _buffer.size();
    for (const std::uint16_t index : indices) {
        _buffer.push_back(static_cast<std::uint8_t>(index));
        _buffer.push_back(static_cast<std::uint8_t>(index >> 8));
    }
    const std::string rest =
        joined({",\"componentType\":", std::to_string(unsignedShortType), ",\"type\":\"SCALAR\""});
    return finishAccessor(start, indices.size(), rest, indexTarget);
}

int GltfModel::finishAccessor(std::size_t start, std::size_t count, const std::string& rest,
                              int target)
{
    const std::string length = std::to_string(_buffer.size() - start);
    // The format wants every accessor to begin at a multiple of its component's size.
    _buffer.resize((_buffer.size() + 3) / 4 * 4);
    _views.push_back(
        joined({"{\"buffer\":0,\"byteOffset\":", std::to_string(start), ",\"byteLength\":", length,
                target ? joined({",\"target\":", std::to_string(target)}) : "", "}"}));
    _accessors.push_back(joined({"{\"bufferView\":", std::to_string(_views.size() - 1),
                                 ",\"count\":", std::to_string(count), rest, "}"}));
    return static_cast<int>(_accessors.size()) - 1;
}

std::string GltfModel::nodeText(const Node& node) const
{
    std::string all = joined({"{\"name\":", quoted(node.name)});
    if (node.translation != Vector{})
        all += joined({",\"translation\":", text(node.translation)});
    if (node.rotation != Quaternion{0, 0, 0, 1})
        all += joined({",\"rotation\":", text(node.rotation)});
    if (node.mesh != none)
        all += joined({",\"mesh\":", std::to_string(node.mesh)});
    if (!node.children.empty())
        all += joined({",\"children\":", numbers(node.children)});
    return all + "}";
}

std::string GltfModel::toText(const std::string& animationName) const
{
    std::vector<std::string> nodes;
    for (const Node& node : _nodes)
        nodes.push_back(nodeText(node));
    std::string all =
        joined({"{\n\"asset\":{\"version\":\"2.0\",\"generator\":\"make-sample-models\"},\n",
                "\"scene\":0,\n\"scenes\":[{\"nodes\":", numbers(_roots), "}],\n"});
    all += joined({list("nodes", nodes), ",\n", list("meshes", _meshes), ",\n",
                   list("materials", _materials), ",\n"});
    if (!_channels.empty()) {
        std::vector<std::string> channels;
        std::vector<std::string> samplers;
        for (const Channel& channel : _channels) {
            channels.push_back(joined({"{\"sampler\":", std::to_string(samplers.size()),
                                       ",\"target\":{\"node\":", std::to_string(channel.node),
                                       ",\"path\":", quoted(channel.path), "}}"}));
            samplers.push_back(joined({"{\"input\":", std::to_string(channel.input),
                                       ",\"output\":", std::to_string(channel.output),
                                       ",\"interpolation\":\"LINEAR\"}"}));
        }
        all += joined({"\"animations\":[{\"name\":", quoted(animationName), ",\n",
                       list("channels", channels), ",\n", list("samplers", samplers), "}],\n"});
    }
    all += joined({list("accessors", _accessors), ",\n", list("bufferViews", _views), ",\n"});
    return joined({all, "\"buffers\":[{\"byteLength\":", std::to_string(_buffer.size()),
                   ",\"uri\":\"data:application/octet-stream;base64,", base64(_buffer),
                   "\"}]\n}\n"});
}

GltfModel::Quaternion GltfModel::turn(const Vector& axis, double degrees)
{
    const double half = degrees * std::numbers::pi / 360.0;
    const double sine = std::sin(half);
    return {axis[0] * sine, axis[1] * sine, axis[2] * sine, std::cos(half)};
}
