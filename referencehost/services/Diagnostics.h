// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>
#include <functional>

/// Where the host writes what is for those who look into it. Standard error unless an application
/// takes it elsewhere.
namespace Diagnostics {

using Sink = std::function<void(const QString& text)>;

HOST_EXPORT void write(const QString& text);
/// An empty sink means standard error again. Returns the one before.
HOST_EXPORT Sink setSink(Sink sink);

} // namespace Diagnostics
