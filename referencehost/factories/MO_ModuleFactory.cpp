// SPDX-License-Identifier: MIT
#include "host/factories/MO_ModuleFactory.h"

#include "host/scene/MO_DisplayModule.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_KinematicOutputModule.h"
#include "host/scene/MO_PassThroughModule.h"
#include "host/scene/MO_PegModule.h"

namespace {

using Factory = class_factory<MO_Module, QString>;

template <class Module>
void registerModule(Factory& factory)
{
    factory.registerClass(Module(QString()).typeName(),
                          [] { return std::make_unique<Module>(QString()); });
}

Factory withAllModules()
{
    Factory factory;
    registerModule<MO_DisplayModule>(factory);
    registerModule<MO_ElementModule>(factory);
    registerModule<MO_GroupModule>(factory);
    registerModule<MO_KinematicOutputModule>(factory);
    registerModule<MO_PassThroughModule>(factory);
    registerModule<MO_PegModule>(factory);
    return factory;
}

} // namespace

Factory& MO_ModuleFactorySingleton()
{
    static Factory factory = withAllModules();
    return factory;
}
