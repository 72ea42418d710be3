// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ImportResult.h"
#include "workbench/modelstream/ModelStreamFormat.h"

#include <OpenSG/OSGGeometry.h>
#include <QByteArray>
#include <QDataStream>
#include <QHash>
#include <optional>

class QIODevice;

/// Sends one import to another process: how far it is, and in the end what became of it. Meshes
/// that several nodes share are sent once. All functions are false once the device has failed.
class ModelStreamWriter
{
public:
    /// The device is not owned, must be open for writing and outlive the writer. Writes the head.
    explicit ModelStreamWriter(QIODevice& device);

    /// From 0 to 1, never less than before.
    bool writeProgress(double fraction);
    /// Ends the stream. The root must be one that an importer made: false for nodes without a core,
    /// for geometry that lacks a property, and for names longer than the format allows.
    bool writeResult(const ImportResult& result);

private:
    bool writeFailure(const ImportResult& result);
    bool writeNodes(const osg::NodePtr& root);
    bool writeNode(const osg::NodePtr& node, quint32 level);
    bool writeMesh(const osg::GeometryPtr& geometry);
    void startNodes();
    bool flushNodes();
    bool send(ModelStream::Frame kind, const QByteArray& content);

    QIODevice& _device;
    bool _works = true;
    QByteArray _nodes;
    std::optional<QDataStream> _nodeStream;
    quint32 _nodeCount = 0;
    QHash<const void*, quint32> _meshes;
};
