// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

class MO_DisplayModule;
class MO_ElementModule;
class MO_GroupModule;
class MO_KinematicOutputModule;
class MO_Module;
class MO_PassThroughModule;
class MO_PegModule;

/// One operation for each kind of module. Modules passed to it are never null.
class HOST_EXPORT MO_AbstractModuleVisitor
{
public:
    virtual ~MO_AbstractModuleVisitor();

    virtual void visit(MO_GroupModule* module) = 0;
    virtual void visit(MO_ElementModule* module) = 0;
    virtual void visit(MO_PegModule* module) = 0;
    virtual void visit(MO_DisplayModule* module) = 0;
    virtual void visit(MO_KinematicOutputModule* module) = 0;
    virtual void visit(MO_PassThroughModule* module) = 0;
};

/// Sends every kind of module that a subclass does not take up to one operation for any module.
class HOST_EXPORT MO_AbstractModuleVisitorWithModuleFallback : public MO_AbstractModuleVisitor
{
public:
    void visit(MO_GroupModule* module) override;
    void visit(MO_ElementModule* module) override;
    void visit(MO_PegModule* module) override;
    void visit(MO_DisplayModule* module) override;
    void visit(MO_KinematicOutputModule* module) override;
    void visit(MO_PassThroughModule* module) override;

    virtual void visit(MO_Module* module) = 0;
};

/// Ignores every module; a subclass overrides the kinds that it cares for.
class HOST_EXPORT MO_ModuleVisitor : public MO_AbstractModuleVisitorWithModuleFallback
{
public:
    using MO_AbstractModuleVisitorWithModuleFallback::visit;
    void visit(MO_Module* module) override;
};
