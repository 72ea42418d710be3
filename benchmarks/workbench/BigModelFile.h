// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

/// A glTF file with that many nodes in the shape of a rig: three children a node, each with a name
/// and a place of its own, and one small shape that every leaf shows. It goes when this goes.
class BigModelFile
{
public:
    explicit BigModelFile(int nodes);

    QString path() const { return _folder.filePath(QStringLiteral("big.gltf")); }

private:
    QTemporaryDir _folder;
};
