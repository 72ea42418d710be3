// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/AT_ModelNodeKey.h"

#include <OpenSG/OSGNode.h>
#include <QHash>
#include <map>
#include <vector>

/// The key nodes of a model, found without a walk: by name, and as the children that a node has if
/// only key nodes count. Made at the first question, so the scene graph of a model must not be
/// edited after that. A model enters its index when it is made and takes it out when it goes.
class KeyNodeIndex
{
public:
    explicit KeyNodeIndex(const osg::NodePtr& root);

    /// Models may share a root; the index goes with the last of them.
    static void enter(const osg::NodePtr& root);
    static void leave(const osg::NodePtr& root);
    /// Null when no model has this root.
    static KeyNodeIndex* of(const osg::NodePtr& root);
    /// The index of the model that the node is part of; null when it is part of none.
    static KeyNodeIndex* ofModelWith(const osg::NodePtr& node);

    /// The first one in pre-order; null when there is none.
    osg::NodePtr find(const AT_ModelNodeKey& key);
    /// In scene-graph order. The reference holds until the next question.
    const std::vector<osg::NodePtr>& keyChildren(const osg::NodePtr& parent);

private:
    osg::NodePtr _root;
    bool _hasNames = false;
    QHash<QString, osg::NodePtr> _firstNodes;
    std::map<osg::NodePtr, std::vector<osg::NodePtr>> _keyChildren;
};

/// The key nodes below the node and below no other key node, by a walk.
std::vector<osg::NodePtr> findKeyChildren(const osg::NodePtr& parent);
/// The first key node with the key at the root or below it, by a walk; null when there is none.
osg::NodePtr findKeyNode(const osg::NodePtr& root, const AT_ModelNodeKey& key);
