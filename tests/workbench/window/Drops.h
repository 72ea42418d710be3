// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QStringList>

class QMimeData;
class QWidget;

namespace Drops {

/// Drags the data over the place of the window, and drops it, as a platform tells a window of it.
/// False when it is not taken there.
bool drop(QWidget& window, const QPoint& at, const QMimeData& data);
bool dropFiles(QWidget& window, const QPoint& at, const QStringList& paths);

} // namespace Drops
