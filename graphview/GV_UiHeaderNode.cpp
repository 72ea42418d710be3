// SPDX-License-Identifier: MIT

#include "graphview/GV_UiHeaderNode.h"

#include "graphview/GV_GraphVisitor.h"
#include "host/scene/MO_ElementModule.h"

GV_UiHeaderNode::GV_UiHeaderNode(const QString& name, const QString& displayName,
                                 const osg::NodePtr& rootNode,
                                 const UT_SharedWeakPtr<MO_ElementModule>& model, bool editable)
    : GV_UiNode(nullptr, name, displayName, 0, 0, editable)
    , _rootNode(rootNode)
    , _model(model)
{
}

GV_UiHeaderNode::~GV_UiHeaderNode() = default;

bool GV_UiHeaderNode::isHeaderNode() const
{
    return true;
}

void GV_UiHeaderNode::accept(GV_GraphVisitor& visitor)
{
    visitor.visit(this);
}

MO_ElementModule* GV_UiHeaderNode::model() const
{
    return _model.get();
}
