// SPDX-License-Identifier: MIT
#include "referencehost/models/ModelCopy.h"

#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <utility>
#include <vector>

namespace {

/// What the nodes below a subnode inherit from it.
struct Inherited
{
    bool visible = true;
    bool shapeVisible = true;
};

struct Pending
{
    osg::NodePtr original;
    osg::NodePtr copy;
    Inherited inherited;
};

osg::Matrix movedBy(const osg::Matrix& own, const AT_ModelNodeData& record, double modelUnits)
{
    osg::Matrix moved = record.transformation;
    for (int axis = 0; axis < 3; ++axis)
        moved[3][axis] = static_cast<osg::Real32>(moved[3][axis] * modelUnits);
    osg::Matrix result = own;
    result.mult(moved);
    return result;
}

/// The core of the copy: the original's own, unless the settings change what it does.
osg::NodeCorePtr coreOf(const osg::NodePtr& node, const CC_Transformation& transformation,
                        double modelUnits, Inherited& inherited)
{
    const osg::NodeCorePtr core = node->getCore();
    if (core == osg::NullFC)
        return core;
    if (!TD_SceneGraphUtil::isKeySubnode(node)) {
        const bool isShape = core->getType().isDerivedFrom(osg::Geometry::getClassType());
        if (isShape && !(inherited.visible && inherited.shapeVisible))
            return osg::Geometry::create();
        return core;
    }
    inherited.shapeVisible = true;
    const AT_ModelNodeKey key(TD_nodeName(node));
    osg::Matrix matrix = osg::KeyTransformPtr::dcast(core)->getMatrix();
    bool isChanged = false;
    for (const auto& deformation : transformation.deformations()) {
        const AT_ModelNodeData* record = deformation->settings().nodeData(key);
        if (!record)
            continue;
        inherited.visible &= record->visible;
        inherited.shapeVisible &= record->localVisible;
        matrix = movedBy(matrix, *record, modelUnits);
        isChanged = true;
    }
    if (!isChanged)
        return core;
    osg::KeyTransformPtr moved = osg::KeyTransform::create();
    osg::beginEditCP(moved);
    moved->setMatrix(matrix);
    osg::endEditCP(moved);
    return moved;
}

} // namespace

osg::NodeRefPtr transformedCopy(const osg::NodePtr& root, const CC_Transformation& transformation,
                                double modelUnits)
{
    // Hierarchies may be deeper than the call stack.
    osg::NodeRefPtr copiedRoot(osg::Node::create());
    std::vector<Pending> pending{{root, copiedRoot, {}}};
    while (!pending.empty()) {
        Pending next = pending.back();
        pending.pop_back();
        const osg::NodeCorePtr core =
            coreOf(next.original, transformation, modelUnits, next.inherited);
        osg::beginEditCP(next.copy);
        next.copy->setCore(core);
        if (const char* name = osg::getName(next.original))
            osg::setName(next.copy, name);
        for (osg::UInt32 i = 0; i < next.original->getNChildren(); ++i) {
            const osg::NodePtr child = osg::Node::create();
            next.copy->addChild(child);
            pending.push_back({next.original->getChild(i), child, next.inherited});
        }
        osg::endEditCP(next.copy);
    }
    return copiedRoot;
}
