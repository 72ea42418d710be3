// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// The icon with a faded look for what cannot be done now: styles grey icons for a light window,
/// which cannot be told from the others in a dark one. A null icon stays null.
QIcon withFadedDisabled(const QIcon& icon);
