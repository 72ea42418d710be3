// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SceneText.h"

#include "workbench/scenefile/JsonMembers.h"
#include "workbench/scenefile/SceneFormat.h"
#include "workbench/scenefile/SubnodeSettingsJson.h"

#include <QDir>
#include <QJsonDocument>
#include <cmath>

namespace {

/// The text of any value, indented as a member of the outermost object.
QByteArray textOf(const QJsonValue& value)
{
    if (value.isArray()) {
        QByteArray text = QJsonDocument(value.toArray()).toJson().trimmed();
        return text.replace("\n", "\n    ");
    }
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return text.mid(1, text.size() - 2);
}

QJsonArray modelsOf(const SceneDescription& scene, const QString& folder)
{
    QJsonArray models;
    for (const SceneDescription::Model& model : scene.models) {
        QJsonObject object;
        if (!model.path.isEmpty()) {
            const QString relative =
                folder.isEmpty() ? QString() : QDir(folder).relativeFilePath(model.path);
            const bool isUsable = !relative.isEmpty() && QDir::isRelativePath(relative);
            object.insert(QLatin1String("path"),
                          JsonMembers::cleanText(isUsable ? relative : model.path));
            object.insert(
                QLatin1String("absolute"),
                JsonMembers::cleanText(model.otherPath.isEmpty() ? model.path : model.otherPath));
        }
        models.append(object);
    }
    return models;
}

void insertNumber(QJsonObject& object, QLatin1String name, double number)
{
    if (number != 0.0 && std::isfinite(number))
        object.insert(name, number);
}

void insertList(QJsonObject& object, QLatin1String name, const QJsonArray& list)
{
    if (!list.isEmpty())
        object.insert(name, list);
}

QJsonObject objectOf(const SceneDescription::Node& node, int id)
{
    QJsonObject object{{QStringLiteral("id"), id},
                       {QStringLiteral("kind"), JsonMembers::cleanText(node.kind)},
                       {QStringLiteral("name"), JsonMembers::cleanText(node.name)}};
    if (node.parent >= 0)
        object.insert(QLatin1String("group"), node.parent + 1);
    insertNumber(object, QLatin1String("x"), node.x);
    insertNumber(object, QLatin1String("y"), node.y);
    if (!node.editable)
        object.insert(QLatin1String("editable"), false);
    insertNumber(object, QLatin1String("inputs"), node.inputs);
    insertNumber(object, QLatin1String("outputs"), node.outputs);

    QJsonArray attributes;
    for (const SceneDescription::Attribute& attribute : node.attributes) {
        attributes.append(
            QJsonObject{{QStringLiteral("kind"), JsonMembers::cleanText(attribute.kind)},
                        {QStringLiteral("name"), JsonMembers::cleanText(attribute.keyword)},
                        {QStringLiteral("value"), JsonMembers::cleanText(attribute.value)}});
    }
    insertList(object, QLatin1String("attributes"), attributes);
    QJsonArray exposures;
    for (const SceneDescription::Exposure& exposure : node.exposures) {
        exposures.append(QJsonObject{{QStringLiteral("first"), exposure.first},
                                     {QStringLiteral("last"), exposure.last},
                                     {QStringLiteral("model"), exposure.model}});
    }
    insertList(object, QLatin1String("exposures"), exposures);
    insertList(object, QLatin1String("settings"), SubnodeSettingsJson::written(node.settings));
    return object;
}

QJsonArray nodesOf(const SceneDescription& scene)
{
    QJsonArray nodes;
    for (const SceneDescription::Node& node : scene.nodes)
        nodes.append(objectOf(node, static_cast<int>(nodes.size()) + 1));
    return nodes;
}

QJsonArray linksOf(const SceneDescription& scene)
{
    QJsonArray links;
    for (const SceneDescription::Link& link : scene.links) {
        QJsonObject object{{QStringLiteral("from"), link.fromNode + 1},
                           {QStringLiteral("to"), link.toNode + 1}};
        insertNumber(object, QLatin1String("output"), link.fromPort);
        insertNumber(object, QLatin1String("input"), link.toPort);
        links.append(object);
    }
    return links;
}

QJsonArray selectionOf(const SceneDescription& scene)
{
    QJsonArray selection;
    for (const SceneDescription::Selected& selected : scene.selection) {
        QJsonObject object{{QStringLiteral("node"), selected.node + 1}};
        QJsonArray subnodes;
        for (const QString& key : selected.subnodes)
            subnodes.append(JsonMembers::cleanText(key));
        insertList(object, QLatin1String("subnodes"), subnodes);
        selection.append(object);
    }
    return selection;
}

} // namespace

QByteArray sceneText(const SceneDescription& scene, const QString& folder)
{
    const std::pair<const char*, QJsonValue> members[] = {
        {"format", SceneFormat::name},
        {"version", SceneFormat::version},
        {"name", JsonMembers::cleanText(scene.name)},
        {"frame", scene.frame},
        {"models", modelsOf(scene, folder)},
        {"nodes", nodesOf(scene)},
        {"links", linksOf(scene)},
        {"selection", selectionOf(scene)},
    };
    QByteArray text = "{";
    for (const auto& [name, value] : members) {
        text += text.size() > 1 ? ",\n" : "\n";
        text += "    \"" + QByteArray(name) + "\": " + textOf(value);
    }
    return text + "\n}\n";
}
