// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The part of a JSON text that can be relied on when it breaks off or goes wrong at the offset:
/// it ends behind the last element before that which is complete, with all open brackets closed.
/// Empty when there is no such part.
QByteArray jsonSalvagedBefore(const QByteArray& json, qsizetype offset);
