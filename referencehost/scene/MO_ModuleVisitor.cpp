// SPDX-License-Identifier: MIT
#include "host/scene/MO_ModuleVisitor.h"

#include "host/scene/MO_DisplayModule.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/MO_PassThroughModule.h"
#include "host/scene/MO_PegModule.h"

MO_AbstractModuleVisitor::~MO_AbstractModuleVisitor() = default;

void MO_AbstractModuleVisitorWithModuleFallback::visit(MO_GroupModule* module)
{
    visit(static_cast<MO_Module*>(module));
}

void MO_AbstractModuleVisitorWithModuleFallback::visit(MO_ElementModule* module)
{
    visit(static_cast<MO_Module*>(module));
}

void MO_AbstractModuleVisitorWithModuleFallback::visit(MO_PegModule* module)
{
    visit(static_cast<MO_Module*>(module));
}

void MO_AbstractModuleVisitorWithModuleFallback::visit(MO_DisplayModule* module)
{
    visit(static_cast<MO_Module*>(module));
}

void MO_AbstractModuleVisitorWithModuleFallback::visit(MO_KinematicOutputModule* module)
{
    visit(static_cast<MO_Module*>(module));
}

void MO_AbstractModuleVisitorWithModuleFallback::visit(MO_PassThroughModule* module)
{
    visit(static_cast<MO_Module*>(module));
}

void MO_ModuleVisitor::visit(MO_Module*)
{
}
