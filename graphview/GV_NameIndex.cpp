// SPDX-License-Identifier: MIT

#include "graphview/GV_NameIndex.h"

#include "graphview/GV_TreeWalk.h"

GV_UiNode* GV_NameIndex::firstNodeBelow(GV_UiNode* root, const QString& name)
{
    if (_root != root || _revision != GV_UiNode::treeRevision())
        rebuild(root);
    return _nodes.value(name);
}

void GV_NameIndex::rebuild(GV_UiNode* root)
{
    _root = root;
    _revision = GV_UiNode::treeRevision();
    _nodes.clear();
    GV_TreeWalk walk(root);
    walk.next();
    while (GV_UiNode* node = walk.next()) {
        GV_UiNode*& first = _nodes[node->name()];
        if (!first)
            first = node;
    }
}
