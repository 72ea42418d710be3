// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <QString>
#include <vector>

/// What the finders of key nodes are to find, said plainly and by recursion.
namespace PlainKeyNodes {

using Nodes = std::vector<osg::NodePtr>;

osg::NodePtr find(const osg::NodePtr& root, const QString& name);
osg::NodePtr parentOf(const osg::NodePtr& node);
Nodes childrenOf(const osg::NodePtr& node);

/// Which answer of a finder, asked at each node of the graph, is not the plain one; empty when all
/// are.
QString wrongAnswer(const osg::NodePtr& root);

} // namespace PlainKeyNodes
