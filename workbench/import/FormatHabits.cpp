// SPDX-License-Identifier: MIT
#include "workbench/import/FormatHabits.h"

#include <algorithm>
#include <assimp/importerdesc.h>
#include <assimp/mesh.h>
#include <assimp/scene.h>
#include <iterator>
#include <sstream>
#include <string_view>
#include <utility>

namespace {

std::string bytes(const aiString& text)
{
    std::string all(text.data, text.length);
    // Callers of the scene graph read names up to the first zero, so whatever follows it would
    // make two names differ that look the same to them.
    const std::size_t zero = all.find('\0');
    if (zero != std::string::npos)
        all.resize(zero);
    return all;
}

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

/// Whether the text is the list's name with an index, and perhaps a part: meshes[3]-1
bool isIndexed(std::string_view text, std::string_view list)
{
    if (!startsWith(text, list))
        return false;
    text.remove_prefix(list.size());
    const std::size_t close = text.find(']');
    if (text.size() < 3 || text.front() != '[' || close == std::string_view::npos || close < 2)
        return false;
    const auto isNumber = [](std::string_view digits) {
        return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos;
    };
    const std::string_view rest = text.substr(close + 1);
    return isNumber(text.substr(1, close - 1)) &&
           (rest.empty() || (rest.front() == '-' && isNumber(rest.substr(1))));
}

bool reads(const aiImporterDesc& reader, const std::string& extension)
{
    std::istringstream extensions(reader.mFileExtensions);
    using Word = std::istream_iterator<std::string>;
    return std::find(Word(extensions), Word(), extension) != Word();
}

} // namespace

FormatHabits::FormatHabits(const aiImporterDesc* reader, std::string path)
    : _path(std::move(path))
{
    if (!reader || !reader->mFileExtensions || !reader->mName)
        return;
    if (reads(*reader, "dae"))
        _family = Family::Collada;
    else if (reads(*reader, "fbx"))
        _family = Family::Fbx;
    else if (reads(*reader, "ifc"))
        _family = Family::Ifc;
    else if (reads(*reader, "gltf") && startsWith(reader->mName, "glTF2"))
        _family = Family::Gltf2;
}

std::string FormatHabits::nodeName(const aiNode& node) const
{
    std::string name = bytes(node.mName);
    if (_family == Family::Gltf2 && isIndexed(name, "nodes"))
        return {};
    if (_family == Family::Collada && startsWith(name, "$ColladaAutoName$"))
        return {};
    // Some readers name the root by the whole path; where a file lies is no part of the model.
    if (!_path.empty() && name == _path)
        return name.substr(name.rfind('/') + 1);
    return name;
}

std::string FormatHabits::meshName(const aiMesh& mesh) const
{
    std::string name = bytes(mesh.mName);
    if (_family == Family::Gltf2 && isIndexed(name, "meshes"))
        return {};
    return name;
}

bool FormatHabits::isHelper(const std::string& name) const
{
    // The identifiers of IFC are written with 64 characters, of which the dollar is one.
    return _family != Family::Ifc && name.find('$') != std::string::npos;
}

bool FormatHabits::isAddedRoot(const std::string& rootName) const
{
    switch (_family) {
    case Family::Collada:
        return true;
    case Family::Fbx:
        return rootName == "RootNode";
    default:
        return rootName.size() > 2 && rootName.front() == '<' && rootName.back() == '>';
    }
}
