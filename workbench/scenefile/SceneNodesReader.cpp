// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SceneNodesReader.h"

#include "workbench/scenefile/JsonMembers.h"
#include "workbench/scenefile/SceneFormat.h"
#include "workbench/scenefile/SceneProblems.h"
#include "workbench/scenefile/SubnodeSettingsJson.h"

#include <algorithm>
#include <iterator>

namespace {

using Problem = SceneProblems::Kind;

} // namespace

SceneNodesReader::SceneNodesReader(SceneDescription& scene, SceneProblems& problems)
    : _scene(scene)
    , _problems(problems)
{
}

void SceneNodesReader::read(const JsonMembers& scene)
{
    int number = 1;
    const QJsonArray nodes = scene.list(QLatin1String("nodes"));
    for (const QJsonValue& node : nodes)
        readNode(node, number++);
    number = 1;
    const QJsonArray links = scene.list(QLatin1String("links"));
    for (const QJsonValue& link : links)
        readLink(link, number++);
    number = 1;
    const QJsonArray selection = scene.list(QLatin1String("selection"));
    for (const QJsonValue& selected : selection)
        readSelected(selected, number++);
}

/// -1 when there is no such node.
int SceneNodesReader::nodeIndex(const JsonMembers& members, QLatin1String name) const
{
    return _indices.value(members.whole(name, 0), -1);
}

void SceneNodesReader::readNode(const QJsonValue& value, int number)
{
    const JsonMembers members(value.toObject(), tr("node %1").arg(number), _problems);
    SceneDescription::Node node;
    node.kind = members.text(QLatin1String("kind"));
    if (node.kind.isEmpty()) {
        _problems.add(Problem::Node, tr("%1 is of no kind").arg(members.where()));
        return;
    }
    const int id = members.whole(QLatin1String("id"), 0);
    const int index = static_cast<int>(_scene.nodes.size());
    if (_indices.contains(id)) {
        // It stays, but what refers to the id means the first.
        _problems.add(Problem::Value, tr("%1 has the id of another").arg(members.where()));
    } else {
        _indices.insert(id, index);
    }
    if (members.has(QLatin1String("group"))) {
        node.parent = nodeIndex(members, QLatin1String("group"));
        if (node.parent < 0 || node.parent == index) {
            node.parent = -1;
            _problems.add(Problem::Value,
                          tr("%1 is in a group that does not come before it").arg(members.where()));
        }
    }
    const auto depthOf = [this](int group) {
        return group < 0 ? 0 : _depths[static_cast<std::size_t>(group)] + 1;
    };
    if (depthOf(node.parent) > SceneFormat::deepestGroup) {
        node.parent = _scene.nodes[static_cast<std::size_t>(node.parent)].parent;
        _problems.add(Problem::Value,
                      tr("%1 is in groups that are nested too deep").arg(members.where()));
    }
    _depths.push_back(depthOf(node.parent));
    node.name = members.text(QLatin1String("name"));
    node.x = members.number(QLatin1String("x"), 0.0);
    node.y = members.number(QLatin1String("y"), 0.0);
    node.editable = members.flag(QLatin1String("editable"), true);
    const auto ports = [&members](QLatin1String name) {
        return std::clamp(members.whole(name, 0), 0, SceneFormat::mostPorts);
    };
    node.inputs = ports(QLatin1String("inputs"));
    node.outputs = ports(QLatin1String("outputs"));
    readAttributes(members, node);
    readExposures(members, node);
    node.settings = SubnodeSettingsJson::read(members, _problems);
    _scene.nodes.push_back(std::move(node));
}

void SceneNodesReader::readAttributes(const JsonMembers& members, SceneDescription::Node& node)
{
    const QJsonArray attributes = members.list(QLatin1String("attributes"));
    for (const QJsonValue& value : attributes) {
        const JsonMembers attribute(value.toObject(), tr("an attribute of %1").arg(members.where()),
                                    _problems);
        node.attributes.push_back({attribute.text(QLatin1String("kind")),
                                   attribute.text(QLatin1String("name")),
                                   attribute.text(QLatin1String("value"))});
    }
}

void SceneNodesReader::readExposures(const JsonMembers& members, SceneDescription::Node& node)
{
    std::map<int, SceneDescription::Exposure> byFirst;
    const QJsonArray exposures = members.list(QLatin1String("exposures"));
    for (const QJsonValue& value : exposures) {
        const JsonMembers exposure(value.toObject(), tr("an exposure of %1").arg(members.where()),
                                   _problems);
        const int first = exposure.whole(QLatin1String("first"), 1);
        const int last = exposure.whole(QLatin1String("last"), first);
        const int model = exposure.whole(QLatin1String("model"), -1);
        const auto next = byFirst.lower_bound(first);
        const bool overlaps = (next != byFirst.end() && next->first <= last) ||
                              (next != byFirst.begin() && std::prev(next)->second.last >= first);
        if (first > last || model < 0 || model >= static_cast<int>(_scene.models.size()) ||
            overlaps) {
            _problems.add(Problem::Exposure, tr("%1 cannot be").arg(exposure.where()));
            continue;
        }
        byFirst.emplace(first, SceneDescription::Exposure{first, last, model});
    }
    for (const auto& [first, exposure] : byFirst)
        node.exposures.push_back(exposure);
}

void SceneNodesReader::readLink(const QJsonValue& value, int number)
{
    const JsonMembers members(value.toObject(), tr("link %1").arg(number), _problems);
    const SceneDescription::Link link{
        nodeIndex(members, QLatin1String("from")), members.whole(QLatin1String("output"), 0),
        nodeIndex(members, QLatin1String("to")), members.whole(QLatin1String("input"), 0)};
    if (link.fromNode < 0 || link.toNode < 0)
        _problems.add(Problem::Link, tr("%1 is of a node that is not there").arg(members.where()));
    else
        _scene.links.push_back(link);
}

void SceneNodesReader::readSelected(const QJsonValue& value, int number)
{
    const JsonMembers members(value.toObject(), tr("selected node %1").arg(number), _problems);
    SceneDescription::Selected selected{nodeIndex(members, QLatin1String("node")), {}};
    if (selected.node < 0) {
        _problems.add(Problem::Selection, tr("%1 is not there").arg(members.where()));
        return;
    }
    const QJsonArray subnodes = members.list(QLatin1String("subnodes"));
    for (const QJsonValue& key : subnodes) {
        if (key.isString())
            selected.subnodes += JsonMembers::cleanText(key.toString());
        else
            _problems.add(Problem::Selection,
                          tr("a subnode of %1 has no name").arg(members.where()));
    }
    _scene.selection.push_back(std::move(selected));
}
