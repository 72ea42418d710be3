// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QString>

/// The two ways in which the application can look: a palette and a style sheet, which also colours
/// the views.
namespace Theme {

enum Kind
{
    Light,
    Dark
};

Kind kindOf(const QPalette& palette);

QPalette palette(Kind kind);

/// Empty when it cannot be read.
QString styleSheet(Kind kind);

} // namespace Theme
