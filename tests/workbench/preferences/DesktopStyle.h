// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

/// A desktop that can change its colours while an application runs. Its style is called "desktop",
/// and its palette is the one of every application that has none of its own.
namespace DesktopStyle {

/// To be called once there is an application: makes it look like the desktop.
void install();

/// Changes the colours, and tells the application, as a platform does.
void turn(const QColor& window);

} // namespace DesktopStyle
