// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "workbench/scenefile/SceneDescription.h"

#include <QCoreApplication>
#include <memory>
#include <vector>

class HostSession;
class MO_GroupModule;
class MO_Node;
class ModelLibrary;
class SceneProblems;
class TD_CelVq3d;

/// Makes the session's scene from a description. All nodes are made first and enter the scene at
/// once, so that listeners hear of a whole scene and the undo history is empty. What this host
/// cannot make is left out and noted as a problem.
class SceneBuilder
{
    Q_DECLARE_TR_FUNCTIONS(SceneBuilder)

public:
    /// One for each model of the description; null where it could not be read. An exposure of that
    /// one gets an empty model which the library knows under the same file.
    using Models = std::vector<CEL_SharedPtr<TD_CelVq3d>>;

    /// None is owned.
    SceneBuilder(HostSession& session, ModelLibrary& library, SceneProblems& problems);
    ~SceneBuilder();

    /// Closes the scene that is open.
    void build(const SceneDescription& scene, const Models& models);

private:
    void completeModels(const SceneDescription& scene, const Models& models);
    void makeNode(const SceneDescription::Node& described);
    void fillElement(const SceneDescription::Node& described, MO_Node& node);
    void setAttributes(const SceneDescription::Node& described, MO_Node& node);
    void link(const SceneDescription::Link& link);
    void enterScene(const SceneDescription& scene);
    void select(const SceneDescription::Selected& selected);

    HostSession& _session;
    ModelLibrary& _library;
    SceneProblems& _problems;
    Models _models;
    /// The node of each index; null where it could not be made.
    std::vector<MO_Node*> _nodes;
    /// The group that takes in what is in the node of each index; null for the root.
    std::vector<MO_GroupModule*> _groups;
    /// Those below the root, in order, until they enter the scene.
    std::vector<std::unique_ptr<MO_Node>> _top;
};
