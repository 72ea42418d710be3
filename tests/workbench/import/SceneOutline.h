// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>
#include <QByteArrayList>

/// What a scene graph looks like, in a form that tests can compare and print.
namespace SceneOutline {

/// "key", "transform", "group" or "geometry"
QByteArray kindOf(const osg::NodePtr& node);
/// A null array if the node has no name.
QByteArray nameOf(const osg::NodePtr& node);

/// A line for each node in pre-order: a dot for each level, the kind, and the name if there is one.
QByteArrayList lines(const osg::NodePtr& root);

/// All nodes in pre-order.
QList<osg::NodePtr> nodes(const osg::NodePtr& root);

/// The first node with the name; NullFC if there is none.
osg::NodePtr find(const osg::NodePtr& root, const QByteArray& name);

} // namespace SceneOutline
