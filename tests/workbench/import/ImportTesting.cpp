// SPDX-License-Identifier: MIT
#include "ImportTesting.h"

#include <QFile>

QString ImportFolder::write(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

ImportResult ImportFolder::import(const QString& name, const QByteArray& content) const
{
    return ModelImporter::importModel(write(name, content));
}

QByteArray gltf(const QByteArrayList& nodes, const QByteArray& moreMembers)
{
    const float positions[] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    const QByteArray buffer(reinterpret_cast<const char*>(positions), sizeof positions);
    return R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],"nodes":[)" +
           nodes.join(",\n") +
           R"(],"meshes":[{"name":"Triangle","primitives":[{"attributes":{"POSITION":0}}]},)"
           R"({"primitives":[{"attributes":{"POSITION":0}}]}],)"
           R"("accessors":[{"bufferView":0,"componentType":5126,"count":3,"type":"VEC3",)"
           R"("min":[0,0,0],"max":[1,1,0]}],)"
           R"("bufferViews":[{"buffer":0,"byteLength":36}],)"
           R"("buffers":[{"byteLength":36,"uri":"data:application/octet-stream;base64,)" +
           buffer.toBase64() + "\"}]" + (moreMembers.isEmpty() ? "" : ",") + moreMembers + "}";
}
