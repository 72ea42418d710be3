// SPDX-License-Identifier: MIT
#include "host/scene/MO_Module.h"

MO_Module::~MO_Module() = default;
