// SPDX-License-Identifier: MIT
#include "host/models/TD_Vq3dCelGetter.h"

#include "host/scene/MO_ElementModule.h"

TD_Vq3dCelGetter::TD_Vq3dCelGetter(const MO_BaseContext& context)
    : _context(context)
{
}

TD_Vq3dCelGetter::~TD_Vq3dCelGetter() = default;

void TD_Vq3dCelGetter::visit(MO_ElementModule* module)
{
    _cel = module->modelAt(_context.frame());
}

void TD_Vq3dCelGetter::visit(MO_Module*)
{
    _cel.reset();
}
