// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_UiNode.h"
#include "host/scene/UT_SharedWeakPtr.h"

#include <OpenSG/OSGNode.h>

class MO_ElementModule;

/// The header box of a 3D model element, and the root of its tree. It outlives its element, and
/// then keeps the element's last name.
class SUBNODEVIEWS_EXPORT GV_UiHeaderNode : public GV_UiNode
{
public:
    /// The root node may be null. The header starts at column 0, row 0.
    GV_UiHeaderNode(const QString& name, const QString& displayName, const osg::NodePtr& rootNode,
                    const UT_SharedWeakPtr<MO_ElementModule>& model, bool editable);
    ~GV_UiHeaderNode() override;

    bool isHeaderNode() const override;
    void accept(GV_GraphVisitor& visitor) override;

    osg::NodePtr rootNode() const { return _rootNode; }
    /// The element; null once it is gone.
    MO_ElementModule* model() const;

    /// The place of the header in the header row; -1 until it was given one.
    int graphIx() const { return _graphIx; }
    void setGraphIx(int graphIx) { _graphIx = graphIx; }

private:
    osg::NodePtr _rootNode;
    UT_SharedWeakPtr<MO_ElementModule> _model;
    std::int32_t _graphIx = -1;
};
