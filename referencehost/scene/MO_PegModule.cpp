// SPDX-License-Identifier: MIT
#include "host/scene/MO_PegModule.h"

#include "host/scene/MO_ModuleVisitor.h"

MO_PegModule::MO_PegModule(const QString& instanceName)
    : MO_Node(instanceName)
{
    addPort(MO_Port::eInput);
    addPort(MO_Port::eOutput);
}

QString MO_PegModule::typeName() const
{
    return QStringLiteral("PEG");
}

void MO_PegModule::accept(MO_AbstractModuleVisitor& visitor)
{
    visitor.visit(this);
}
