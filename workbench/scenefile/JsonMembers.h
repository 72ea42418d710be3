// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

class SceneProblems;

/// The members of one JSON object, read with the suspicion that files deserve: a member that is not
/// there gives the fallback, and one of another type, or out of range, the fallback and a problem.
class JsonMembers
{
public:
    /// The problems are not owned. "Where" tells people which object it is.
    JsonMembers(const QJsonObject& object, const QString& where, SceneProblems& problems);

    bool has(QLatin1String name) const { return _object.contains(name); }
    /// Text with anything that is no character replaced, so that it can be written again.
    QString text(QLatin1String name, const QString& fallback = {}) const;
    bool flag(QLatin1String name, bool fallback) const;
    double number(QLatin1String name, double fallback) const;
    int whole(QLatin1String name, int fallback) const;
    QJsonArray list(QLatin1String name) const;

    const QString& where() const { return _where; }

    static QString cleanText(const QString& text);

private:
    void complain(QLatin1String name) const;

    QJsonObject _object;
    QString _where;
    SceneProblems& _problems;
};
