// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SubnodeSettingsJson.h"

#include "workbench/scenefile/JsonMembers.h"
#include "workbench/scenefile/SceneProblems.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr osg::UInt32 matrixSize = 4;

/// The number with the fewest digits that is this one when it is read as a float.
double shortest(float number)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, number).ptr;
    double value = number;
    std::from_chars(text, end, value);
    return static_cast<float>(value) == number ? value : number;
}

QJsonArray numbersOf(const osg::Matrix& matrix)
{
    QJsonArray numbers;
    for (osg::UInt32 column = 0; column < matrixSize; ++column) {
        for (osg::UInt32 row = 0; row < matrixSize; ++row)
            numbers.append(shortest(matrix[column][row]));
    }
    return numbers;
}

bool isFinite(const osg::Matrix& matrix)
{
    for (osg::UInt32 column = 0; column < matrixSize; ++column) {
        for (osg::UInt32 row = 0; row < matrixSize; ++row) {
            if (!std::isfinite(matrix[column][row]))
                return false;
        }
    }
    return true;
}

std::optional<osg::Matrix> matrixOf(const QJsonArray& numbers)
{
    constexpr double largest = std::numeric_limits<float>::max();
    osg::Matrix matrix;
    if (numbers.size() != matrixSize * matrixSize)
        return std::nullopt;
    osg::UInt32 index = 0;
    for (const QJsonValue& value : numbers) {
        if (!value.isDouble() || !(std::abs(value.toDouble()) <= largest))
            return std::nullopt;
        matrix[index / matrixSize][index % matrixSize] = static_cast<float>(value.toDouble());
        ++index;
    }
    return matrix;
}

} // namespace

QJsonArray SubnodeSettingsJson::written(const std::map<int, AT_ModelData>& settings)
{
    QJsonArray frames;
    for (const auto& [frame, data] : settings) {
        QJsonArray subnodes;
        for (const auto& [key, record] : data.records()) {
            QJsonObject subnode{{QStringLiteral("key"), JsonMembers::cleanText(key.name())}};
            if (!record.visible)
                subnode.insert(QLatin1String("visible"), false);
            if (!record.localVisible)
                subnode.insert(QLatin1String("localVisible"), false);
            if (record.hasTransformation)
                subnode.insert(QLatin1String("hasTransformation"), true);
            // A matrix that is not one moves nothing anywhere.
            if (!(record.transformation == osg::Matrix()) && isFinite(record.transformation))
                subnode.insert(QLatin1String("transformation"), numbersOf(record.transformation));
            subnodes.append(subnode);
        }
        frames.append(
            QJsonObject{{QStringLiteral("frame"), frame}, {QStringLiteral("subnodes"), subnodes}});
    }
    return frames;
}

std::map<int, AT_ModelData> SubnodeSettingsJson::read(const JsonMembers& node,
                                                      SceneProblems& problems)
{
    using Problem = SceneProblems::Kind;
    std::map<int, AT_ModelData> settings;
    const QJsonArray frames = node.list(QLatin1String("settings"));
    for (const QJsonValue& value : frames) {
        const JsonMembers members(
            value.toObject(), SceneProblems::tr("the settings of %1").arg(node.where()), problems);
        AT_ModelData& data = settings[members.whole(QLatin1String("frame"), 1)];
        const QJsonArray subnodes = members.list(QLatin1String("subnodes"));
        for (const QJsonValue& entry : subnodes) {
            const JsonMembers subnode(entry.toObject(), members.where(), problems);
            const AT_ModelNodeKey key(subnode.text(QLatin1String("key")));
            if (key.empty() || data.nodeData(key)) {
                problems.add(Problem::Setting,
                             SceneProblems::tr("%1 are of no subnode, or of one that has some")
                                 .arg(members.where()));
                continue;
            }
            AT_ModelNodeData record;
            record.visible = subnode.flag(QLatin1String("visible"), true);
            record.localVisible = subnode.flag(QLatin1String("localVisible"), true);
            record.hasTransformation = subnode.flag(QLatin1String("hasTransformation"), false);
            if (subnode.has(QLatin1String("transformation"))) {
                const std::optional<osg::Matrix> matrix =
                    matrixOf(subnode.list(QLatin1String("transformation")));
                if (matrix)
                    record.transformation = *matrix;
                else
                    problems.add(Problem::Value,
                                 SceneProblems::tr("%1: a transformation is not sixteen numbers")
                                     .arg(members.where()));
            }
            data.setNodeData(key, record);
        }
    }
    return settings;
}
