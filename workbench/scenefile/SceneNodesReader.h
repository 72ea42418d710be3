// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/scenefile/SceneDescription.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonValue>
#include <vector>

class JsonMembers;
class SceneProblems;

/// Reads nodes, links and selection of a scene file into its description, whose models are there
/// already. Nodes know each other by the ids that they have in the file.
class SceneNodesReader
{
    Q_DECLARE_TR_FUNCTIONS(SceneNodesReader)

public:
    /// Neither is owned.
    SceneNodesReader(SceneDescription& scene, SceneProblems& problems);

    void read(const JsonMembers& scene);

private:
    void readNode(const QJsonValue& value, int number);
    void readLink(const QJsonValue& value, int number);
    void readSelected(const QJsonValue& value, int number);
    void readAttributes(const JsonMembers& members, SceneDescription::Node& node);
    void readExposures(const JsonMembers& members, SceneDescription::Node& node);
    int nodeIndex(const JsonMembers& members, QLatin1String name) const;

    SceneDescription& _scene;
    SceneProblems& _problems;
    /// The index of the node of each id.
    QHash<int, int> _indices;
    /// How many groups each node is in, by its index.
    std::vector<int> _depths;
};
