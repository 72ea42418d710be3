// SPDX-License-Identifier: MIT
#include "host/scene/MO_KinematicOutputModule.h"

#include "host/attributes/AT_StringAttr.h"
#include "host/scene/MO_ModuleVisitor.h"
#include "host/scene/MO_TypeKeys.h"

MO_KinematicOutputModule::MO_KinematicOutputModule(const QString& instanceName)
    : MO_Node(instanceName)
{
    addPort(MO_Port::eInput);
    addPort(MO_Port::eOutput);
    addAttr(
        std::make_unique<AT_StringAttr>(this, AT_AttrMeta(QStringLiteral("Sub_Node_Name"), true)));
}

QString MO_KinematicOutputModule::typeName() const
{
    return STRING_KEY_3D_KINEMATIC_OUTPUT;
}

void MO_KinematicOutputModule::accept(MO_AbstractModuleVisitor& visitor)
{
    visitor.visit(this);
}
