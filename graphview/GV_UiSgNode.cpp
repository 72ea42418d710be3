// SPDX-License-Identifier: MIT

#include "graphview/GV_UiSgNode.h"

#include "graphview/GV_GraphVisitor.h"

GV_UiSgNode::GV_UiSgNode(GV_UiNode* parent, const QString& name, const QString& displayName,
                         const osg::NodePtr& sgNode, bool editable)
    : GV_UiNode(parent, name, displayName, editable)
    , _sgNode(sgNode)
{
}

GV_UiSgNode::~GV_UiSgNode() = default;

bool GV_UiSgNode::isSgNode() const
{
    return true;
}

void GV_UiSgNode::accept(GV_GraphVisitor& visitor)
{
    visitor.visit(this);
}
