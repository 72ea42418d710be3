// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_UiNode.h"

#include <vector>

/// Walks a tree in pre-order without recursion, since hierarchies can be deeper than the call
/// stack. The tree must not change during the walk; flags of its nodes may.
class GV_TreeWalk
{
public:
    /// A null root makes an empty walk.
    explicit GV_TreeWalk(GV_UiNode* root)
    {
        if (root)
            _pending.push_back(root);
    }

    /// The next node; null at the end.
    GV_UiNode* next()
    {
        if (_entered) {
            for (auto it = _entered->childrenEnd(); it != _entered->childrenBegin();)
                _pending.push_back(*--it);
            _entered = nullptr;
        }
        if (_pending.empty())
            return nullptr;
        _entered = _pending.back();
        _pending.pop_back();
        return _entered;
    }

    /// Leaves out everything below the node that next() gave last.
    void skipChildren() { _entered = nullptr; }

private:
    std::vector<GV_UiNode*> _pending;
    GV_UiNode* _entered = nullptr;
};
