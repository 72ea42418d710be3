// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"
#include "host/factories/class_factory.h"
#include "host/scene/MO_Module.h"

#include <QString>

/// The factory of all modules, by their type names; it knows every kind of the host.
HOST_EXPORT class_factory<MO_Module, QString>& MO_ModuleFactorySingleton();
