// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ImportResult.h"

#include <QCoreApplication>
#include <QList>

class ImportProgress;

/// A kind of file that can be imported.
struct ModelFormat
{
    /// In lower case and without a dot before it: "gltf".
    QString extension;
    /// For people: "Autodesk FBX". Several readers of one extension are joined by commas.
    QString description;
};

/// Reads model files into scene graphs. A named node of the file that carries a transform or a
/// mesh becomes a KeyTransform, one that only groups a Group, helper nodes and nodes without a name
/// become plain Transforms, and each mesh of a node becomes a Geometry leaf below it. Files are not
/// trusted: whatever is wrong with one ends in a message. Only a file that crashes or starves
/// the reading library itself needs a process of its own around the call.
class ModelImporter
{
    Q_DECLARE_TR_FUNCTIONS(ModelImporter)

public:
    /// Blocks until the file is read; any thread may call it once osgInit() has been called. A
    /// path that is empty, or names no file, a folder, something that is not a regular file, or a
    /// file that is empty, unreadable, damaged, of unknown kind or without any content gives an
    /// error. The progress may be null.
    static ImportResult importModel(const QString& path, ImportProgress* progress = nullptr);

    /// Sorted by extension, each extension once.
    static QList<ModelFormat> supportedFormats();
};
