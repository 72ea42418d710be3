// SPDX-License-Identifier: MIT
#pragma once

#include "host/scene/UT_SharedWeakPtr.h"

#include <set>

class MO_Node;

/// What a change notification is about. Members are weak, so one that is gone by the time a
/// listener looks reads as null and must be skipped.
template <class T>
using TUChangeSet = std::set<T>;

using TUNodeSet = TUChangeSet<UT_SharedWeakPtr<MO_Node>>;
