// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_UiNode.h"

#include <OpenSG/OSGNode.h>

/// The box of one scene-graph node below a header.
class SUBNODEVIEWS_EXPORT GV_UiSgNode : public GV_UiNode
{
public:
    /// Not laid out yet; the parent is not told of the new child.
    GV_UiSgNode(GV_UiNode* parent, const QString& name, const QString& displayName,
                const osg::NodePtr& sgNode, bool editable);
    ~GV_UiSgNode() override;

    bool isSgNode() const override;
    void accept(GV_GraphVisitor& visitor) override;

    osg::NodePtr sgNode() const { return _sgNode; }

private:
    osg::NodePtr _sgNode;
};
