// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ModelStreamReader.h"

#include <QByteArray>
#include <QByteArrayList>

/// Short ways through a stream and back, for tests.
namespace StreamTesting {

constexpr qint64 plenty = qint64(1) << 30;

QByteArray encoded(const ImportResult& result);

struct Decoded
{
    ModelStreamReader::State state;
    ImportResult result;
};
/// Feeds portions of the size, all at once if it is 0.
Decoded decoded(const QByteArray& stream, qsizetype portion = 0, qint64 memory = plenty);

/// Everything that a stream carries about a scene, down to the bits of each number and to which
/// nodes share a mesh.
QByteArrayList everything(const ImportResult& result);

/// A scene of every kind of node that an importer makes, the same for the same seed. All of its
/// statistics are right.
ImportResult randomScene(quint32 seed, int nodes);
/// A few nodes of each kind, two of which share a mesh.
ImportResult smallScene();

} // namespace StreamTesting
