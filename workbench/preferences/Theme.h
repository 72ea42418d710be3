// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QString>
#include <optional>

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

/// Nothing when the text names no theme. "system" is what the desktop's palette is like.
std::optional<Kind> fromName(const QString& name);

/// Needs the application. Without one of its own, a theme keeps the desktop's palette.
void apply(Kind kind);

} // namespace Theme
