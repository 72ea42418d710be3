// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

/// The shared reference that drawings are handed around by; the last one releases the drawing.
template <class T>
using CEL_SharedPtr = std::shared_ptr<T>;
