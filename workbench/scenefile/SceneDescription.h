// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelData.h"

#include <QString>
#include <QStringList>
#include <map>
#include <vector>

/// All that a scene file says, as plain values: what is read from a file before a scene is made of
/// it, and what a scene is turned into before it is written. Nodes refer to each other, and
/// exposures to models, by index; an index is always valid or -1 where that has a meaning.
struct SceneDescription
{
    /// A file that models come from. The paths are absolute and clean.
    struct Model
    {
        /// Empty for a model that came from no file.
        QString path;
        /// Where the file was when the scene was saved, if that is another place; may be empty.
        QString otherPath;

        friend bool operator==(const Model&, const Model&) = default;
    };

    struct Exposure
    {
        int first;
        int last;
        int model;

        friend bool operator==(const Exposure&, const Exposure&) = default;
    };

    struct Attribute
    {
        QString kind;
        QString keyword;
        QString value;

        friend bool operator==(const Attribute&, const Attribute&) = default;
    };

    struct Node
    {
        /// The node that holds it, which comes before it; -1 for the root of the scene.
        int parent = -1;
        QString kind;
        QString name;
        double x = 0.0;
        double y = 0.0;
        bool editable = true;
        /// How many ports there are at least; 0 where the kind decides.
        int inputs = 0;
        int outputs = 0;
        std::vector<Attribute> attributes;
        /// By first frame; no two overlap and none is empty.
        std::vector<Exposure> exposures;
        /// By the frame from which they hold.
        std::map<int, AT_ModelData> settings;

        friend bool operator==(const Node&, const Node&) = default;
    };

    struct Link
    {
        int fromNode;
        int fromPort;
        int toNode;
        int toPort;

        friend bool operator==(const Link&, const Link&) = default;
    };

    struct Selected
    {
        int node;
        /// The keys of the sub-selected subnodes, in order.
        QStringList subnodes;

        friend bool operator==(const Selected&, const Selected&) = default;
    };

    QString name;
    int frame = 1;
    std::vector<Model> models;
    /// Each node before those that it holds, in the order of the scene.
    std::vector<Node> nodes;
    /// In the order of linking, as far as that makes a difference.
    std::vector<Link> links;
    /// In the order of selecting.
    std::vector<Selected> selection;

    friend bool operator==(const SceneDescription&, const SceneDescription&) = default;
};
