// SPDX-License-Identifier: MIT
#include "host/scene/SC_SceneCommon.h"

SC_SceneCommon::SC_SceneCommon(const QString& name)
    : _name(name)
{
}

SC_SceneCommon::~SC_SceneCommon() = default;
