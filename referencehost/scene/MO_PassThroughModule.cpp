// SPDX-License-Identifier: MIT
#include "host/scene/MO_PassThroughModule.h"

#include "host/scene/MO_ModuleVisitor.h"

MO_PassThroughModule::MO_PassThroughModule(const QString& instanceName)
    : MO_Node(instanceName)
{
    addPort(MO_Port::eInput);
    addPort(MO_Port::eOutput);
}

QString MO_PassThroughModule::typeName() const
{
    return QStringLiteral("PASS_THROUGH");
}

void MO_PassThroughModule::accept(MO_AbstractModuleVisitor& visitor)
{
    visitor.visit(this);
}
