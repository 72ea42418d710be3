// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

class SLB_ManipContext;
class SLB_NodeInterface;

/// Changes a node with a 3D transformation. Nothing changes at once: commands are recorded into the
/// macro of the context, keyed at its frame, and only where something would change.
class HOST_EXPORT TD_Module3dTransformManipulator
{
public:
    virtual ~TD_Module3dTransformManipulator();

    /// Switch the sub-selected subnodes on or off.
    virtual void setVisible(const SLB_ManipContext& context, SLB_NodeInterface* selected,
                            bool visible) = 0;
    /// Show or hide their own shapes.
    virtual void setLocalVisible(const SLB_ManipContext& context, SLB_NodeInterface* selected,
                                 bool visible) = 0;
};

/// Changes a node whose subnodes have transformations of their own.
class HOST_EXPORT TD_NodeWith3DSubNodeManipulator : public TD_Module3dTransformManipulator
{
public:
    ~TD_NodeWith3DSubNodeManipulator() override;

    void setVisible(const SLB_ManipContext& context, SLB_NodeInterface* selected,
                    bool visible) override;
    void setLocalVisible(const SLB_ManipContext& context, SLB_NodeInterface* selected,
                         bool visible) override;
    /// Gives the sub-selected subnodes that have none a transformation, which moves nothing yet.
    virtual void createSubNodeTransformations(const SLB_ManipContext& context,
                                              SLB_NodeInterface* selected);
};

/// Finds out how a selected node is to be changed.
class HOST_EXPORT TD_Transformation3dUtil
{
public:
    /// The manipulator for what is selected; owned by the caller, null when there is none for it.
    static TD_Module3dTransformManipulator*
    createTransformation3dManipulator(SLB_NodeInterface* selected);
};
