// SPDX-License-Identifier: MIT
#include "workbench/scenefile/JsonMembers.h"

#include "workbench/scenefile/SceneProblems.h"

#include <cmath>
#include <limits>

JsonMembers::JsonMembers(const QJsonObject& object, const QString& where, SceneProblems& problems)
    : _object(object)
    , _where(where)
    , _problems(problems)
{
}

void JsonMembers::complain(QLatin1String name) const
{
    _problems.add(SceneProblems::Kind::Value,
                  SceneProblems::tr("%1: the value of \"%2\" is not understood").arg(_where, name));
}

QString JsonMembers::cleanText(const QString& text)
{
    QString clean = text;
    for (qsizetype i = 0; i < clean.size(); ++i) {
        const bool isPair =
            clean[i].isHighSurrogate() && i + 1 < clean.size() && clean[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else if (clean[i].isSurrogate())
            clean[i] = QChar::ReplacementCharacter;
    }
    return clean;
}

QString JsonMembers::text(QLatin1String name, const QString& fallback) const
{
    const QJsonValue value = _object.value(name);
    if (value.isString())
        return cleanText(value.toString());
    if (!value.isUndefined())
        complain(name);
    return fallback;
}

bool JsonMembers::flag(QLatin1String name, bool fallback) const
{
    const QJsonValue value = _object.value(name);
    if (!value.isUndefined() && !value.isBool())
        complain(name);
    return value.toBool(fallback);
}

double JsonMembers::number(QLatin1String name, double fallback) const
{
    const QJsonValue value = _object.value(name);
    if (value.isDouble() && std::isfinite(value.toDouble()))
        return value.toDouble();
    if (!value.isUndefined())
        complain(name);
    return fallback;
}

int JsonMembers::whole(QLatin1String name, int fallback) const
{
    using Limits = std::numeric_limits<int>;
    const QJsonValue value = _object.value(name);
    const double number = value.toDouble(0.5);
    if (value.isDouble() && number == std::floor(number) && number >= Limits::min() &&
        number <= Limits::max())
        return static_cast<int>(number);
    if (!value.isUndefined())
        complain(name);
    return fallback;
}

QJsonArray JsonMembers::list(QLatin1String name) const
{
    const QJsonValue value = _object.value(name);
    if (!value.isUndefined() && !value.isArray())
        complain(name);
    return value.toArray();
}
