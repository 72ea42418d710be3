// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/qglobal.h>

/// Every class and function of the host interface is defined in the host's own library and used
/// from others, so its symbols are always visible.
#define HOST_EXPORT Q_DECL_EXPORT
