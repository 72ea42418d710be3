// SPDX-License-Identifier: MIT
#include "referencehost/preferences/PreferenceValue.h"

#include <algorithm>
#include <limits>

namespace {

/// QVariant converts nearly anything into a number, a boolean and a fraction included.
std::optional<qlonglong> toInteger(const QVariant& stored)
{
    switch (stored.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::QString:
        break;
    default:
        return std::nullopt;
    }
    bool valid = false;
    const qlonglong number = stored.toString().toLongLong(&valid);
    return valid ? std::optional(number) : std::nullopt;
}

template <class Number>
std::optional<Number> toNumber(const QVariant& stored)
{
    const std::optional<qlonglong> number = toInteger(stored);
    if (!number || *number < std::numeric_limits<Number>::min() ||
        *number > std::numeric_limits<Number>::max())
        return std::nullopt;
    return static_cast<Number>(*number);
}

} // namespace

namespace PreferenceValue {

std::optional<bool> toBool(const QVariant& stored)
{
    if (stored.typeId() == QMetaType::Bool)
        return stored.toBool();
    if (stored.typeId() != QMetaType::QString)
        return std::nullopt;
    const QString text = stored.toString();
    if (text == QLatin1String("true"))
        return true;
    if (text == QLatin1String("false"))
        return false;
    return std::nullopt;
}

std::optional<int> toInt(const QVariant& stored)
{
    return toNumber<int>(stored);
}

std::optional<unsigned int> toRgba(const QVariant& stored)
{
    const QString text = stored.toString();
    if (!text.startsWith(u'#'))
        return toNumber<unsigned int>(stored);
    const QStringView digits = QStringView(text).mid(1);
    // Read as a number alone, signs and blanks between the digits would pass.
    const auto isHexDigit = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    };
    if (digits.size() != 8 || !std::all_of(digits.begin(), digits.end(), isHexDigit))
        return std::nullopt;
    return digits.toUInt(nullptr, 16);
}

std::optional<QString> toFont(const QVariant& stored)
{
    if (stored.typeId() != QMetaType::QString || stored.toString().isEmpty())
        return std::nullopt;
    return stored.toString();
}

QString fromRgba(unsigned int rgba)
{
    return QStringLiteral("#%1").arg(rgba, 8, 16, QLatin1Char('0'));
}

} // namespace PreferenceValue
