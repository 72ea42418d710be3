// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SceneProblems.h"

#include "workbench/modelstream/OneLine.h"

#include <QFileInfo>
#include <QStringList>
#include <algorithm>

namespace {

constexpr int mostNamedModels = 5;
constexpr int longestName = 60;

} // namespace

void SceneProblems::add(Kind kind, const QString& detail)
{
    _problems.push_back({kind, oneLine(detail)});
}

int SceneProblems::count(Kind kind) const
{
    return static_cast<int>(std::ranges::count(_problems, kind, &Problem::kind));
}

QString SceneProblems::missingModels() const
{
    QStringList names;
    for (const Problem& problem : _problems) {
        if (problem.kind != Kind::MissingModel)
            continue;
        const QString file = QFileInfo(problem.detail).fileName();
        names += file.isEmpty() ? tr("one that came from no file") : shortLine(file, longestName);
    }
    if (names.isEmpty())
        return {};
    const auto all = names.size();
    if (all > mostNamedModels) {
        names = names.mid(0, mostNamedModels);
        names += tr("and %1 more").arg(all - mostNamedModels);
    }
    const QString list = names.join(QStringLiteral(", "));
    return all == 1 ? tr("1 model is missing: %1").arg(list)
                    : tr("%1 models are missing: %2").arg(all).arg(list);
}

QString SceneProblems::summary(const QString& path) const
{
    if (empty())
        return {};
    QStringList parts;
    const auto say = [this, &parts](Kind kind, const QString& one, const QString& several) {
        const int number = count(kind);
        if (number == 1)
            parts += one;
        else if (number > 1)
            parts += several.arg(number);
    };
    const auto sayFirst = [this, &parts](Kind kind) {
        const auto it = std::ranges::find(_problems, kind, &Problem::kind);
        if (it != _problems.end())
            parts += it->detail;
    };
    sayFirst(Kind::LaterVersion);
    sayFirst(Kind::Damage);
    if (const QString missing = missingModels(); !missing.isEmpty())
        parts += missing;
    say(Kind::Node, tr("1 node was left out"), tr("%1 nodes were left out"));
    say(Kind::Link, tr("1 link was left out"), tr("%1 links were left out"));
    say(Kind::Exposure, tr("1 exposure was left out"), tr("%1 exposures were left out"));
    say(Kind::Setting, tr("the settings of 1 subnode were left out"),
        tr("the settings of %1 subnodes were left out"));
    say(Kind::Selection, tr("1 selected item is not there"), tr("%1 selected items are not there"));
    say(Kind::Value, tr("1 value was not understood"), tr("%1 values were not understood"));
    return shortLine(QFileInfo(path).fileName(), longestName) + QStringLiteral(": ") +
           parts.join(QStringLiteral("; "));
}
