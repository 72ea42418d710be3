// SPDX-License-Identifier: MIT

#include "graphview/GV_ShownRows.h"

#include "graphview/GV_TreeWalk.h"
#include "graphview/GV_UiNode.h"

#include <algorithm>

bool GV_ShownRows::isCurrent(const GV_UiNode* root) const
{
    return _root == root && _treeRevision == GV_UiNode::treeRevision() &&
           _layoutRevision == GV_UiNode::layoutRevision();
}

namespace {

bool hasPlaceBelow(GV_UiNode* node)
{
    GV_TreeWalk walk(node);
    walk.next();
    while (const GV_UiNode* below = walk.next()) {
        if (below->column() >= 0)
            return true;
    }
    return false;
}

} // namespace

void GV_ShownRows::rebuild(GV_UiNode* root)
{
    start(root);
    bool laidOut = true;
    GV_TreeWalk walk(root);
    while (GV_UiNode* node = walk.next()) {
        append(node);
        if (node->isCollapsed()) {
            laidOut = laidOut && !hasPlaceBelow(node);
            walk.skipChildren();
        }
    }
    finish();
    _laidOut = laidOut;
}

void GV_ShownRows::start(GV_UiNode* root)
{
    _root = root;
    _nodes.clear();
    _inOrder = true;
}

void GV_ShownRows::append(GV_UiNode* node)
{
    _inOrder &= node->row() == static_cast<int>(_nodes.size());
    _nodes.push_back(node);
}

void GV_ShownRows::finish()
{
    _treeRevision = GV_UiNode::treeRevision();
    _layoutRevision = GV_UiNode::layoutRevision();
    _laidOut = true;
}

GV_UiNode* GV_ShownRows::nodeAtRow(int row) const
{
    if (_inOrder)
        return row >= 0 && row < static_cast<int>(_nodes.size()) ? _nodes[row] : nullptr;
    const auto it = std::find_if(_nodes.begin(), _nodes.end(),
                                 [row](const GV_UiNode* node) { return node->row() == row; });
    return it == _nodes.end() ? nullptr : *it;
}
