// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <vector>

class MO_ElementModule;
class TUScene;

/// Every element of the scene, at whatever depth of its groups, in order. A null scene has none.
HOST_EXPORT std::vector<MO_ElementModule*> elementsOf(const TUScene* scene);
