// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphVisitor.h"

#include "graphview/GV_UiHeaderNode.h"
#include "graphview/GV_UiSgNode.h"

void GV_GraphVisitor::visit(GV_UiSgNode* node)
{
    visit(static_cast<GV_UiNode*>(node));
}

void GV_GraphVisitor::visit(GV_UiHeaderNode* node)
{
    visit(static_cast<GV_UiNode*>(node));
}

void GV_GraphVisitor::visit(GV_UiNode*)
{
}
