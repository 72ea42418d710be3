// SPDX-License-Identifier: MIT
#include "ModelFiles.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

namespace {

const QString name = QStringLiteral("name");
const QString children = QStringLiteral("children");

int indexOf(const QJsonArray& nodes, const QString& wanted)
{
    for (qsizetype i = 0; i < nodes.size(); ++i) {
        if (nodes[i].toObject().value(name).toString() == wanted)
            return static_cast<int>(i);
    }
    return -1;
}

void addChild(QJsonArray& nodes, int parent, const QString& added)
{
    // It has the shape of its parent.
    const QJsonObject like = nodes[parent].toObject();
    nodes.append(QJsonObject{{name, added}, {QStringLiteral("mesh"), like.value("mesh")}});
    QJsonObject changed = like;
    QJsonArray below = changed.value(children).toArray();
    below.prepend(nodes.size() - 1);
    changed.insert(children, below);
    nodes[parent] = changed;
}

void leaveOut(QJsonArray& nodes, int index)
{
    for (QJsonValueRef node : nodes) {
        QJsonObject changed = node.toObject();
        QJsonArray below = changed.value(children).toArray();
        for (qsizetype i = below.size() - 1; i >= 0; --i) {
            if (below[i].toInt() == index)
                below.removeAt(i);
        }
        if (below.isEmpty())
            changed.remove(children);
        else
            changed.insert(children, below);
        node = changed;
    }
}

bool write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

bool ModelFiles::writeRobot(const QString& path, const QString& added, const QString& leftOut,
                            Way way)
{
    QFile sample(QStringLiteral(MODELS "/robot.gltf"));
    if (!sample.open(QIODevice::ReadOnly))
        return false;
    QJsonObject robot = QJsonDocument::fromJson(sample.readAll()).object();
    QJsonArray nodes = robot.value("nodes").toArray();
    if (!added.isEmpty())
        addChild(nodes, indexOf(nodes, QStringLiteral("Torso")), added);
    if (!leftOut.isEmpty())
        leaveOut(nodes, indexOf(nodes, leftOut));
    robot.insert("nodes", nodes);
    const QByteArray content = QJsonDocument(robot).toJson();
    if (way == Way::Write)
        return write(path, content);
    const QString beside = path + QStringLiteral(".new");
    return write(beside, content) && std::rename(qPrintable(beside), qPrintable(path)) == 0;
}

bool ModelFiles::writeBroken(const QString& path)
{
    return write(path, "This is no model.");
}
