// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <vector>

/// What was wrong with a scene file, one entry for each fault, and the one message that sums them
/// up for people. A value.
class SceneProblems
{
    Q_DECLARE_TR_FUNCTIONS(SceneProblems)

public:
    enum class Kind
    {
        LaterVersion,
        Damage,
        MissingModel,
        Node,
        Link,
        Exposure,
        Setting,
        Selection,
        Value
    };
    struct Problem
    {
        Kind kind;
        /// One line; for a missing model, its path.
        QString detail;
    };

    void add(Kind kind, const QString& detail);

    bool empty() const { return _problems.empty(); }
    const std::vector<Problem>& all() const { return _problems; }
    int count(Kind kind) const;

    /// One line that begins with the name of the file, without its folder; empty when there is no
    /// problem.
    QString summary(const QString& path) const;

private:
    QString missingModels() const;

    std::vector<Problem> _problems;
};
