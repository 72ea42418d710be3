// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"
#include "host/models/CC_Transformation.h"
#include "host/models/CEL_SharedPtr.h"

class MO_BaseContext;
class MO_ElementModule;
class MO_Node;
class TD_CelVq3d;

/// What is often asked of a node that shows a 3D model.
class HOST_EXPORT TD_Model3DUtils
{
public:
    /// The model that the node shows at the frame of the context; null when it shows none.
    static CEL_SharedPtr<TD_CelVq3d> get3dModel(const MO_BaseContext& context, MO_Node* node);
    /// The settings of the model's subnodes that hold at that frame; null when there are none.
    /// Owned by the node.
    static AT_ModelData* getModelMetadata(const MO_BaseContext& context, const MO_Node* node);

    /// The element whose model a node works on: an element's own, and for other nodes the one that
    /// feeds them, however far upstream; null when there is none.
    static MO_ElementModule* getParentElement(MO_Node* node);

    static std::shared_ptr<const CC_Deformation> createSubTransformation(const AT_ModelData& data);
    /// A copy of the model in which subnodes are moved, and subnodes that are off, or whose shape
    /// is hidden, have empty shapes. Its hierarchy is that of the original. The metric is that of
    /// the scene. Asked again for the same, it gives the same copy. A null model gives null.
    static CEL_SharedPtr<TD_CelVq3d> getTransformed3dModel(const CEL_SharedPtr<TD_CelVq3d>& model,
                                                           const CC_Transformation& transformation,
                                                           double modelUnits);
};
