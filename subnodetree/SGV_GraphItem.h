// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QList>
#include <QString>

/// A row of the subnode tree: one node of a scene graph. An item owns its children; whoever holds
/// the root owns the tree.
class SUBNODEVIEWS_EXPORT SGV_GraphItem
{
public:
    /// What the node is.
    enum KindFlag : quint32
    {
        IsGeometry = 1,
        IsTransform = 2,
        IsKeyTransform = 4
    };
    /// What is switched off about the subnode.
    enum VisibilityState : quint32
    {
        Disabled = 1,
        ShapeHidden = 2
    };

    /// A null parent makes a root. The parent is not told of the new child.
    SGV_GraphItem(const QString& name, SGV_GraphItem* parent);
    ~SGV_GraphItem();
    SGV_GraphItem(const SGV_GraphItem&) = delete;
    SGV_GraphItem& operator=(const SGV_GraphItem&) = delete;

    /// The name of the scene-graph node.
    const QString& name() const { return _name; }
    /// Null for a root.
    SGV_GraphItem* parent() const { return _parent; }

    const QList<SGV_GraphItem*>& children() const { return _children; }
    /// Null when there is no child in that row.
    SGV_GraphItem* child(int row) const;
    /// The item's position among its parent's children; 0 for a root, -1 when the parent does not
    /// have it. Takes constant time, or, after
    /// earlier siblings were removed, time in proportion to their number.
    int row() const;
    /// Takes ownership of the child and appends it.
    void append(SGV_GraphItem* child);
    /// Deletes the first child and everything below it.
    void deleteFirstChild();

    quint32 kindFlags() const { return _kindFlags; }
    void setKindFlags(quint32 flags) { _kindFlags = flags; }

    quint32 visibilityState() const { return _visibilityState; }
    /// Whether a node further up is disabled.
    bool isAncestorDisabled() const { return _ancestorDisabled; }
    void setVisibility(quint32 state, bool ancestorDisabled);

    /// The item's place among all items of its model, parents before children; -1 until it has one.
    int order() const { return _order; }
    void setOrder(int order) { _order = order; }

private:
    QList<SGV_GraphItem*> _children;
    SGV_GraphItem* _parent;
    QString _name;
    quint32 _kindFlags = 0;
    quint32 _visibilityState = 0;
    int _order = -1;
    /// Where the item was put, which only deletions of earlier siblings make untrue.
    int _row = -1;
    bool _ancestorDisabled = false;
};
