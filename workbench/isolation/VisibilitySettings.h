// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelData.h"

#include <OpenSG/OSGNode.h>
#include <optional>
#include <vector>

/// How isolating changes the settings of a model's subnodes. Settings that are not there are
/// std::nullopt.
namespace VisibilitySettings {

/// Settings with which nothing is drawn but the given subnodes, each with what hangs below it as
/// it was. What leads to them stays on, with its own shapes hidden. Keys without a subnode are
/// ignored.
AT_ModelData isolated(const std::optional<AT_ModelData>& held, const osg::NodePtr& root,
                      const std::vector<AT_ModelNodeKey>& keys);

/// The settings as they are now, with everything as visible as it was before. Without other changes
/// in between these are the settings before.
std::optional<AT_ModelData> restored(const std::optional<AT_ModelData>& now,
                                     const std::optional<AT_ModelData>& before);

} // namespace VisibilitySettings
