// SPDX-License-Identifier: MIT
#include "host/services/PLUG_EditionStackInterface.h"

PLUG_EditionStackInterface::~PLUG_EditionStackInterface() = default;
