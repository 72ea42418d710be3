// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The text on one line that can be shown to people: whatever cannot be printed becomes a space.
QString oneLine(const QString& text);

/// The same, with runs of spaces made one and an ellipsis in place of what exceeds the limit,
/// which counts characters.
QString shortLine(const QString& text, int limit);
