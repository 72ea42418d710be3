// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

/// The kinds of hierarchy that costs are measured on.
enum class Shape
{
    /// One to four children a node, at most 30 levels: what a character is built like.
    Rig,
    /// Every node directly below the root.
    Flat,
    /// Every node below the one before.
    Chain
};

/// A scene graph of exactly that many nodes, the same in every run. Inner nodes are key nodes with
/// now and then a plain group between them, leaves are shapes, and all names differ.
osg::NodeRefPtr sampleGraph(Shape shape, int nodes);

/// A copy of the first nodes of a graph, in pre-order, with their names and the kinds of their
/// cores.
osg::NodeRefPtr firstNodesOf(const osg::NodePtr& root, int nodes);
