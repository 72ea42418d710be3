// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelData.h"

#include <QJsonArray>
#include <map>

class JsonMembers;
class SceneProblems;

/// The settings of an element's subnodes as JSON, by the frames from which they hold. Only what
/// differs from a subnode as modelled is written; every number comes back as exactly what it was.
namespace SubnodeSettingsJson {

QJsonArray written(const std::map<int, AT_ModelData>& settings);

/// Reads the member "settings" of a node; what cannot be read is left out and noted.
std::map<int, AT_ModelData> read(const JsonMembers& node, SceneProblems& problems);

} // namespace SubnodeSettingsJson
