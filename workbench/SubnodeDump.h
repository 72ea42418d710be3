// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

class QString;
class QTextStream;

/// Writes the hierarchy of a model as text, a line for each node, two spaces of indentation for
/// each level: the key nodes alone, each below the next key node above it, or every node with the
/// type of its core. Characters that would break a line are written as escapes.
class SubnodeDump
{
public:
    /// The stream is not owned.
    SubnodeDump(QTextStream& out, bool everyNode);

    /// The title stands above the tree, at its left edge. A null root has no lines.
    void write(const QString& title, const osg::NodePtr& root);

private:
    QTextStream& _out;
    bool _everyNode;
};
