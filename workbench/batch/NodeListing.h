// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <QSet>
#include <QString>
#include <vector>

class AT_ModelData;

/// One node of a model as a listing shows it. A value.
struct ListedNode
{
    /// Empty for a node without a name.
    QString name;
    /// The type of its core; empty for a node without one.
    QString type;
    /// Levels below the model, from 1. Nodes that are not listed make no level.
    int depth = 1;
    bool isKey = false;
    bool disabled = false;
    bool shapeHidden = false;
    bool hasProperties = false;
    bool selected = false;
};

/// What a listing shows of a model, and with what in mind.
struct ListingOptions
{
    /// Every node of the scene graph instead of the key nodes alone.
    bool everyNode = false;
    /// Only nodes whose name contains this text, whatever the case, and those that lead to one.
    QString filter;
    /// The settings of the subnodes that hold; null when there are none. Not owned.
    const AT_ModelData* settings = nullptr;
    /// The names of the subnodes that are selected.
    QSet<QString> selected;
};

/// The nodes in the order of the tree, each before what it holds. A null root has none.
std::vector<ListedNode> listNodes(const osg::NodePtr& root, const ListingOptions& options);
