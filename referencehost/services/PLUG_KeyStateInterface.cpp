// SPDX-License-Identifier: MIT
#include "host/services/PLUG_KeyStateInterface.h"

PLUG_KeyStateInterface::~PLUG_KeyStateInterface() = default;
