// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>
#include <optional>

/// Stored preferences as values of one kind. A stored value is what this process wrote or the text
/// that it became in the settings file, and both read alike; anything else is no value of the kind.
namespace PreferenceValue {

std::optional<bool> toBool(const QVariant& stored);
std::optional<int> toInt(const QVariant& stored);
std::optional<unsigned int> toRgba(const QVariant& stored);
/// An empty text is no font.
std::optional<QString> toFont(const QVariant& stored);

/// The colour as people write it, "#aarrggbb", so that the settings file can be read and edited.
QString fromRgba(unsigned int rgba);

} // namespace PreferenceValue
