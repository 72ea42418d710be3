// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNodePtr.h>
#include <QString>

/// What became of a file. The counts are of scene-graph nodes, apart from meshes, which are the
/// geometry cores that those nodes share, and the vertices and faces in them.
struct ImportStatistics
{
    int keyTransforms = 0;
    int transforms = 0;
    int groups = 0;
    int geometries = 0;
    int meshes = 0;
    qint64 vertices = 0;
    qint64 faces = 0;
    /// Nodes that did not get the name that the file gives them.
    int renamed = 0;

    int nodes() const { return keyTransforms + transforms + groups + geometries; }
};

/// The outcome of an import: either a root or an error, never both and never neither. It owns a
/// reference of the root. References are not counted atomically, so a result and its copies
/// belong to one thread at a time.
struct ImportResult
{
    /// NullFC after an error.
    osg::NodeRefPtr root;
    ImportStatistics statistics;
    /// One line that begins with the file's name as it was given; empty after a success.
    QString error;
    /// The error only says that the import was stopped on request.
    bool cancelled = false;

    bool succeeded() const { return error.isEmpty(); }

    /// Results that say why there is no model. The path may be empty and both may hold anything.
    static ImportResult failure(const QString& path, const QString& reason);
    static ImportResult outOfMemory(const QString& path);
    static ImportResult cancellation(const QString& path);
    /// What every error about the file begins with.
    static QString errorStart(const QString& path);
};
