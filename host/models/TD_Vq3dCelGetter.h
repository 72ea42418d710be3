// SPDX-License-Identifier: MIT
#pragma once

#include "host/models/CEL_SharedPtr.h"
#include "host/scene/MO_BaseContext.h"
#include "host/scene/MO_ModuleVisitor.h"

class TD_CelVq3d;

/// Fetches the 3D model that a module shows at a frame.
class HOST_EXPORT TD_Vq3dCelGetter : public MO_ModuleVisitor
{
public:
    explicit TD_Vq3dCelGetter(const MO_BaseContext& context);
    ~TD_Vq3dCelGetter() override;

    using MO_ModuleVisitor::visit;
    void visit(MO_ElementModule* module) override;
    void visit(MO_Module* module) override;

    /// The model of the module visited last; null when it shows none at that frame.
    CEL_SharedPtr<TD_CelVq3d> celPtr() const { return _cel; }

private:
    MO_BaseContext _context;
    CEL_SharedPtr<TD_CelVq3d> _cel;
};
