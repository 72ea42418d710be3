// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/import/ModelImporter.h"
#include "workbench/modelstream/ImportProgress.h"

#include <QByteArray>
#include <QList>
#include <QTemporaryDir>

/// A folder that tests put their files into, and short ways to import them.
class ImportFolder
{
public:
    /// The whole path of the file, which is written with the content.
    QString write(const QString& name, const QByteArray& content) const;
    QString path(const QString& name) const { return _folder.filePath(name); }

    ImportResult import(const QString& name, const QByteArray& content) const;

private:
    QTemporaryDir _folder;
};

/// The text of a glTF file with the given entries of its list of nodes, of which the first is the
/// only root. The meshes 0 and 1 are triangles, named "Triangle" and not at all.
QByteArray gltf(const QByteArrayList& nodes, const QByteArray& moreMembers = {});

/// Remembers what it was told, and cancels when it is told to.
class RecordingProgress : public ImportProgress
{
public:
    void report(double fraction) override { fractions.append(fraction); }
    bool isCancelled() const override
    {
        return !fractions.isEmpty() && fractions.last() >= cancelAt;
    }

    QList<double> fractions;
    double cancelAt = 2.0;
};
