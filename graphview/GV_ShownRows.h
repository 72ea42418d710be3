// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <cstdint>
#include <vector>

class GV_UiNode;

/// The nodes of a tree that are not folded away, in pre-order: after layout, each at the position
/// of its row. Finds the node of a row without a search, and notices when the tree has changed
/// since. Owns nothing.
class SUBNODEVIEWS_EXPORT GV_ShownRows
{
public:
    /// Whether the rows are those of this root, as its tree is now.
    bool isCurrent(const GV_UiNode* root) const;

    /// A null root gives no rows.
    void rebuild(GV_UiNode* root);

    /// For the layout, which meets the shown nodes in order anyway: start, then append each node
    /// after its counts were set, then finish.
    void start(GV_UiNode* root);
    void append(GV_UiNode* node);
    void finish();

    const std::vector<GV_UiNode*>& nodes() const { return _nodes; }
    /// Whether every node stands at the position of its row, as layout leaves it.
    bool isInOrder() const { return _inOrder; }
    /// Whether the tree is as layout leaves it: in order, and what is folded away without a place.
    bool isLaidOut() const { return _laidOut && _inOrder; }

    /// The first shown node whose row it is; null when there is none.
    GV_UiNode* nodeAtRow(int row) const;

private:
    GV_UiNode* _root = nullptr;
    std::uint64_t _treeRevision = 0;
    std::uint64_t _layoutRevision = 0;
    bool _inOrder = false;
    bool _laidOut = false;
    std::vector<GV_UiNode*> _nodes;
};
