// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

/// How the application looks: its palette and its style sheet, which also colours the views.
namespace Theme {

enum Kind
{
    Light,
    Dark
};

/// Nothing when the text names no theme. "system" is what the desktop's palette is like.
std::optional<Kind> fromName(const QString& name);

/// Needs the application. Without one of its own, a theme keeps the desktop's palette.
void apply(Kind kind);

} // namespace Theme
