// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>

/// Icons that are drawn when they are shown: sharp at every scale, and right after a change of the
/// theme.
namespace PreferenceIcons {

/// The colour over a chequered ground, which shows through what is transparent, with
/// some room at its sides.
QIcon swatch(const QColor& color);

/// An arrow that turns back, in the colour of the buttons' text.
QIcon backToDefault();

} // namespace PreferenceIcons
