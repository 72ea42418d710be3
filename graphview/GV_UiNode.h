// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QMap>
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

class GV_GraphVisitor;

/// A box of the graph view: the names, grid position and fold state of one part of a model. Nodes
/// form a tree; each owns its children, and whoever holds the root owns the tree.
///
/// Counts are the node's column and row on the layout grid. They are -1 until the node is laid out
/// and while it is folded away below a collapsed node.
class SUBNODEVIEWS_EXPORT GV_UiNode
{
public:
    /// Which colour of a node is asked for.
    enum eObjType
    {
        eText = 0,
        eBox = 1
    };

    /// Which part of a node's cell a point lies on.
    enum eSelectionType
    {
        eNoSelection = 0,
        eNodeSelection = 1,
        eCollapsingControlSelection = 2,
        eEmptySelection = 3
    };

    using Children = std::vector<GV_UiNode*>;
    using Attachments = QMap<std::uintptr_t, std::shared_ptr<void>>;

    /// A null parent makes a root. The parent is not owned, nor told of the new child.
    GV_UiNode(GV_UiNode* parent, const QString& name, const QString& displayName, int column,
              int row, bool editable);
    /// The same, not laid out yet.
    GV_UiNode(GV_UiNode* parent, const QString& name, const QString& displayName, bool editable);
    GV_UiNode(const GV_UiNode&) = delete;
    GV_UiNode& operator=(const GV_UiNode&) = delete;

    virtual bool isHeaderNode() const;
    virtual bool isSgNode() const;
    virtual void accept(GV_GraphVisitor& visitor);
    virtual ~GV_UiNode();

    /// What is written in the box: the shortened name, or the full one where that fits.
    const QString& label() const { return _displayName.isEmpty() ? _name : _displayName; }
    const QString& name() const { return _name; }
    /// Empty when the full name fits the box.
    const QString& displayName() const { return _displayName; }
    void setNames(const QString& name, const QString& displayName);

    int column() const { return _column; }
    int row() const { return _row; }
    void setCounts(int column, int row);

    /// Whether the node's children are folded away. Layout does not follow by itself.
    bool isCollapsed() const { return _collapsed; }
    void setCollapsed(bool collapsed);

    /// Whether the user may act on the node.
    bool isEditable() const { return _editable; }
    /// Returns the value before.
    bool setEditable(bool editable);

    /// Null for a root.
    GV_UiNode* parent() const { return _parent; }

    bool hasChildren() const { return !_children.empty(); }
    Children::const_iterator childrenBegin() const { return _children.begin(); }
    Children::const_iterator childrenEnd() const { return _children.end(); }
    /// Appends the child and takes ownership of it.
    void addChild(GV_UiNode* child);
    void reserveChildren(std::size_t count) { _children.reserve(count); }
    /// Destroys everything below the node.
    void clearChildren();

    /// Objects that others hang on the node; released with it.
    Attachments& attachments() { return _attachments; }

    /// Count every change of any node's names or children, of any node's counts or fold state, and
    /// of whether any node is editable, so that what was derived from a tree can tell whether it
    /// still holds. Nodes that come and go count as changes of the tree.
    static std::uint64_t treeRevision() { return _treeRevision; }
    static std::uint64_t layoutRevision() { return _layoutRevision; }
    static std::uint64_t editableRevision() { return _editableRevision; }

private:
    static std::uint64_t _treeRevision;
    static std::uint64_t _layoutRevision;
    static std::uint64_t _editableRevision;

    QString _name;
    QString _displayName;
    std::int32_t _column;
    std::int32_t _row;
    bool _collapsed = false;
    bool _editable;
    GV_UiNode* _parent;
    Children _children;
    Attachments _attachments;
};
