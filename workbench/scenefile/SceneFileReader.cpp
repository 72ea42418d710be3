// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SceneFileReader.h"

#include "workbench/scenefile/JsonMembers.h"
#include "workbench/scenefile/JsonSalvage.h"
#include "workbench/scenefile/SceneFormat.h"
#include "workbench/scenefile/SceneNodesReader.h"
#include "workbench/scenefile/SceneUpgrade.h"

#include <QDir>
#include <QJsonDocument>

namespace {

using Problem = SceneProblems::Kind;

/// Parses as much as can be parsed.
QJsonObject parsed(const QByteArray& bytes, SceneProblems& problems)
{
    QJsonParseError error;
    const QJsonDocument whole = QJsonDocument::fromJson(bytes, &error);
    if (error.error == QJsonParseError::NoError)
        return whole.object();
    const qsizetype line = bytes.left(error.offset).count('\n') + 1;
    problems.add(
        Problem::Damage,
        SceneFileReader::tr("it is damaged in line %1, and what follows was left out").arg(line));
    return QJsonDocument::fromJson(jsonSalvagedBefore(bytes, error.offset)).object();
}

/// Qt takes what begins with a colon for a path into the program.
bool isRelative(const QString& path)
{
    return QDir::isRelativePath(path) || path.startsWith(u':');
}

QString absolutePath(const QString& path, const QString& folder)
{
    if (path.isEmpty())
        return {};
    const bool canResolve = !folder.isEmpty() && isRelative(path);
    return QDir::cleanPath(canResolve ? folder + u'/' + path : path);
}

SceneDescription::Model modelOf(const JsonMembers& members, const QString& folder)
{
    const QString relative = members.text(QLatin1String("path"));
    const QString absolute = absolutePath(members.text(QLatin1String("absolute")), {});
    SceneDescription::Model model{absolutePath(relative, folder),
                                  isRelative(absolute) ? QString() : absolute};
    if (model.path.isEmpty() || (folder.isEmpty() && !model.otherPath.isEmpty()))
        model.path = model.otherPath;
    if (model.otherPath == model.path)
        model.otherPath.clear();
    return model;
}

/// The version as the file claims it, or as its shape suggests where the claim was lost.
int versionOf(const QJsonObject& object, SceneProblems& problems)
{
    const JsonMembers members(object, SceneFileReader::tr("the scene"), problems);
    const int claimed = members.whole(QLatin1String("version"), 0);
    if (claimed > 0)
        return claimed;
    if (claimed < 0 || !members.has(QLatin1String("version")))
        problems.add(Problem::Value, SceneFileReader::tr("the version is missing"));
    return members.has(QLatin1String("elements")) ? 1 : SceneFormat::version;
}

} // namespace

SceneFileReader::Result SceneFileReader::read(const QByteArray& bytes, const QString& folder)
{
    Result result;
    QJsonObject object = parsed(bytes, result.problems);
    if (object.value(QLatin1String("format")).toString() != SceneFormat::name) {
        result.error = tr("this is no scene file");
        return result;
    }
    const int version = versionOf(object, result.problems);
    if (version == 1)
        object = SceneUpgrade::fromVersion1(object);
    if (version > SceneFormat::version) {
        result.problems.add(Problem::LaterVersion,
                            tr("it was saved by a later version, and what is new was left out"));
    }

    const JsonMembers members(object, tr("the scene"), result.problems);
    result.scene.name = members.text(QLatin1String("name"));
    result.scene.frame = members.whole(QLatin1String("frame"), 1);
    int number = 0;
    const QJsonArray models = members.list(QLatin1String("models"));
    for (const QJsonValue& value : models) {
        const JsonMembers model(value.toObject(), tr("model %1").arg(number++), result.problems);
        result.scene.models.push_back(modelOf(model, folder));
    }
    SceneNodesReader(result.scene, result.problems).read(members);
    return result;
}
