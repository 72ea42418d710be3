// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"

#include <OpenSG/OSGNode.h>

#include <QtGlobal>
#include <optional>
#include <string>
#include <vector>

class TD_CelVq3d;

/// Builds models from descriptions that read like the model:
///
///     model(group("scene", {key("Arm", {key("Hand", {geometry("HandShape")})})}))
namespace ModelBuilder {

/// The name of a part, byte by byte. None leaves the part without a name, which is not the same
/// as an empty name.
using Name = std::optional<std::string>;
inline constexpr std::nullopt_t noName = std::nullopt;

/// The description of one scene-graph node with everything below it. A value.
struct Part
{
    osg::NodePtr (*create)();
    Name name;
    std::vector<Part> parts;
};

using Parts = std::vector<Part>;

/// Parts by the core of their nodes; key nodes are those with a KeyTransform.
Part key(const Name& name, const Parts& parts = {});
Part transform(const Name& name, const Parts& parts = {});
Part group(const Name& name, const Parts& parts = {});
Part geometry(const Name& name, const Parts& parts = {});
Part coreless(const Name& name, const Parts& parts = {});

/// The node that a part describes. Nobody holds a reference of it yet.
osg::NodePtr build(const Part& part);

/// Models that hold what they are made of. They may be as deep as they like: they come apart
/// without recursion.
CEL_SharedPtr<TD_CelVq3d> model(const osg::NodePtr& root);
CEL_SharedPtr<TD_CelVq3d> model(const Part& root);
CEL_SharedPtr<TD_CelVq3d> emptyModel();

/// Key nodes link0, link1, ... one below the other, the last one above a nameless shape.
CEL_SharedPtr<TD_CelVq3d> chain(int links);

/// A model of this many nodes of all kinds, the same for the same seed. Its names come from a
/// small stock, so that many are alike, and some are empty or missing.
CEL_SharedPtr<TD_CelVq3d> randomModel(quint32 seed, int nodes);

} // namespace ModelBuilder
