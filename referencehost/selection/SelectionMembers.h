// SPDX-License-Identifier: MIT
#pragma once

#include "host/selection/SLB_NodeInterface.h"

#include <map>
#include <memory>

/// The members of a selection by their order ids, which is also the order of selecting.
using SelectionMembers = std::map<unsigned int, std::unique_ptr<SLB_NodeInterface>>;
