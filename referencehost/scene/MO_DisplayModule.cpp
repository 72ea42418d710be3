// SPDX-License-Identifier: MIT
#include "host/scene/MO_DisplayModule.h"

#include "host/scene/MO_ModuleVisitor.h"

MO_DisplayModule::MO_DisplayModule(const QString& instanceName)
    : MO_Node(instanceName)
{
    addPort(MO_Port::eInput);
}

QString MO_DisplayModule::typeName() const
{
    return QStringLiteral("DISPLAY");
}

void MO_DisplayModule::accept(MO_AbstractModuleVisitor& visitor)
{
    visitor.visit(this);
}
