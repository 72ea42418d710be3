// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <OpenSG/OSGNode.h>
#include <QString>

/// Writes the scene graph of a model where the host writes diagnostics.
class HOST_EXPORT TD_SceneGraphDumper
{
public:
    /// One line a node, indented by its depth up to a hundred levels: its name, the type of its core, a star when it is a
    /// subnode, the number of its children, and the matrix of a transformation. A null root writes
    /// that there is nothing.
    void dump(const osg::NodePtr& root) const;
    /// The same as text.
    static QString text(const osg::NodePtr& root);
};
