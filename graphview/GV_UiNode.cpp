// SPDX-License-Identifier: MIT

#include "graphview/GV_UiNode.h"

#include "graphview/GV_GraphVisitor.h"

#include <utility>

std::uint64_t GV_UiNode::_treeRevision = 0;
std::uint64_t GV_UiNode::_layoutRevision = 0;
std::uint64_t GV_UiNode::_editableRevision = 0;

GV_UiNode::GV_UiNode(GV_UiNode* parent, const QString& name, const QString& displayName, int column,
                     int row, bool editable)
    : _name(name)
    , _displayName(displayName)
    , _column(column)
    , _row(row)
    , _editable(editable)
    , _parent(parent)
{
    ++_treeRevision;
}

GV_UiNode::GV_UiNode(GV_UiNode* parent, const QString& name, const QString& displayName,
                     bool editable)
    : GV_UiNode(parent, name, displayName, -1, -1, editable)
{
}

GV_UiNode::~GV_UiNode()
{
    clearChildren();
}

bool GV_UiNode::isHeaderNode() const
{
    return false;
}

bool GV_UiNode::isSgNode() const
{
    return false;
}

void GV_UiNode::accept(GV_GraphVisitor& visitor)
{
    visitor.visit(this);
}

void GV_UiNode::setNames(const QString& name, const QString& displayName)
{
    ++_treeRevision;
    _name = name;
    _displayName = displayName;
}

void GV_UiNode::setCounts(int column, int row)
{
    ++_layoutRevision;
    _column = column;
    _row = row;
}

void GV_UiNode::setCollapsed(bool collapsed)
{
    if (_collapsed == collapsed)
        return;
    ++_layoutRevision;
    _collapsed = collapsed;
}

bool GV_UiNode::setEditable(bool editable)
{
    if (_editable != editable)
        ++_editableRevision;
    return std::exchange(_editable, editable);
}

void GV_UiNode::addChild(GV_UiNode* child)
{
    ++_treeRevision;
    _children.push_back(child);
}

void GV_UiNode::clearChildren()
{
    ++_treeRevision;
    // A node is destroyed only after its children were taken from it: hierarchies can be deeper
    // than the call stack.
    Children doomed = std::exchange(_children, {});
    while (!doomed.empty()) {
        GV_UiNode* node = doomed.back();
        doomed.pop_back();
        doomed.insert(doomed.end(), node->_children.begin(), node->_children.end());
        node->_children.clear();
        delete node;
    }
}
