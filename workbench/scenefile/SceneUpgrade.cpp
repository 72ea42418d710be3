// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SceneUpgrade.h"

#include "workbench/scenefile/SceneFormat.h"

#include <QHash>
#include <QJsonArray>
#include <limits>

namespace {

constexpr int firstFrame = 1;
constexpr int lastFrame = std::numeric_limits<int>::max();

QJsonArray settingsThatHide(const QJsonArray& keys)
{
    QJsonArray subnodes;
    for (const QJsonValue& key : keys)
        subnodes.append(
            QJsonObject{{QStringLiteral("key"), key}, {QStringLiteral("visible"), false}});
    return {
        QJsonObject{{QStringLiteral("frame"), firstFrame}, {QStringLiteral("subnodes"), subnodes}}};
}

} // namespace

QJsonObject SceneUpgrade::fromVersion1(const QJsonObject& scene)
{
    QJsonArray models;
    QHash<QString, int> indices;
    QJsonArray nodes;
    const QJsonArray elements = scene.value(QLatin1String("elements")).toArray();
    for (const QJsonValue& value : elements) {
        QJsonObject node = value.toObject();
        node.insert(QLatin1String("id"), nodes.size() + 1);
        node.insert(QLatin1String("kind"), QStringLiteral("ELEMENT"));
        if (const QString path = node.take(QLatin1String("model")).toString(); !path.isEmpty()) {
            if (!indices.contains(path)) {
                indices.insert(path, static_cast<int>(models.size()));
                models.append(QJsonObject{{QStringLiteral("path"), path}});
            }
            node.insert(QLatin1String("exposures"),
                        QJsonArray{QJsonObject{{QStringLiteral("first"), firstFrame},
                                               {QStringLiteral("last"), lastFrame},
                                               {QStringLiteral("model"), indices.value(path)}}});
        }
        const QJsonArray hidden = node.take(QLatin1String("hidden")).toArray();
        if (!hidden.isEmpty())
            node.insert(QLatin1String("settings"), settingsThatHide(hidden));
        nodes.append(node);
    }
    QJsonObject upgraded = scene;
    upgraded.remove(QLatin1String("elements"));
    upgraded.insert(QLatin1String("version"), SceneFormat::version);
    upgraded.insert(QLatin1String("models"), models);
    upgraded.insert(QLatin1String("nodes"), nodes);
    return upgraded;
}
