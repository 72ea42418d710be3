// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "host/models/TD_CelVq3d.h"

#include <OpenSG/OSGKeyTransform.h>
#include <QStringList>

using Model = CEL_SharedPtr<TD_CelVq3d>;

/// A new node with a core of the class and a name, appended to the parent unless that is null.
template <class Core>
osg::NodePtr addNode(const osg::NodePtr& parent, const char* name);

/// A model whose key nodes have the names, all directly below an unnamed root.
Model modelOf(const QStringList& keyNames);
/// A model of as many key nodes, with the names "0", "1", ...
Model modelOfSize(int keyNodes);

void setNodeName(const osg::NodePtr& node, const char* name);

template <class Core>
osg::NodePtr addNode(const osg::NodePtr& parent, const char* name)
{
    const osg::NodePtr node = osg::makeCoredNode<Core>();
    setNodeName(node, name);
    if (parent != osg::NullFC)
        parent->addChild(node);
    return node;
}
