// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QString>
#include <cstddef>

class GV_UiNode;

/// Tells a node by its name and its parent's name, so that it can be found again after the tree
/// was rebuilt. Nodes of one name below parents of one name share a key. A value.
struct SUBNODEVIEWS_EXPORT GV_UiNodeKey
{
    struct SUBNODEVIEWS_EXPORT GV_UiNodeKeyHasher
    {
        std::size_t operator()(const GV_UiNodeKey& key) const;
    };

    /// A null node gives the key with both names empty.
    explicit GV_UiNodeKey(const GV_UiNode* node);

    /// Empty for a node without a parent.
    QString parentName;
    QString nodeName;

    friend bool operator==(const GV_UiNodeKey&, const GV_UiNodeKey&) = default;
};
