// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <cstdint>

class GV_UiNode;

/// Finds the first node of a tree, in pre-order, that bears a name, without a search through the
/// tree. Made at the first look-up and again after the tree has changed. Owns nothing.
class GV_NameIndex
{
public:
    /// The root itself is never found; null when no node below it bears the name.
    GV_UiNode* firstNodeBelow(GV_UiNode* root, const QString& name);

private:
    void rebuild(GV_UiNode* root);

    GV_UiNode* _root = nullptr;
    std::uint64_t _revision = 0;
    QHash<QString, GV_UiNode*> _nodes;
};
