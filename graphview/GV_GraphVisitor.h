// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

class GV_UiHeaderNode;
class GV_UiNode;
class GV_UiSgNode;

/// Visits the nodes of the graph. A visitor that treats every kind alike overrides the visit of
/// any node; one that cares for a kind overrides the visit of that kind, which then no longer
/// reaches the visit of any node. Visitors may change a node's flags but not the tree. They live
/// on the caller's stack and are never deleted through this class.
class SUBNODEVIEWS_EXPORT GV_GraphVisitor
{
public:
    virtual void visit(GV_UiSgNode* node);
    virtual void visit(GV_UiHeaderNode* node);
    virtual void visit(GV_UiNode* node);

protected:
    GV_GraphVisitor() = default;
    ~GV_GraphVisitor() = default;
};

/// Asks for a walk over the header nodes alone.
class SUBNODEVIEWS_EXPORT GV_HeaderVisitor : public GV_GraphVisitor
{
protected:
    ~GV_HeaderVisitor() = default;
};

/// Asks for a walk over the visible tree alone, its header included.
class SUBNODEVIEWS_EXPORT GV_VisibleTreeVisitor : public GV_GraphVisitor
{
protected:
    ~GV_VisibleTreeVisitor() = default;
};
