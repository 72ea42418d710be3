// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ImportResult.h"
#include "workbench/modelstream/ModelStreamFormat.h"
#include "workbench/modelstream/SceneAssembler.h"

#include <QByteArray>

/// Turns the bytes of a ModelStreamWriter back into the import that they tell of. The sender may
/// have been taken over by the file that it read, so nothing is believed: whatever no writer would
/// have sent makes the stream damaged, for good.
class ModelStreamReader
{
public:
    enum class State
    {
        /// More must come.
        Incomplete,
        /// The result is there, and nothing may follow.
        Complete,
        Damaged
    };

    /// The scene graph may take as many bytes; the stream itself is never held as a whole.
    explicit ModelStreamReader(qint64 memoryLimit);

    State state() const { return _state; }
    /// From 0 to 1, never less than before.
    double progress() const { return _progress; }
    /// What was sent once the stream is complete; before, and if it is damaged, an error that names
    /// no file. A message is on one line but otherwise the sender's own.
    ImportResult result() const;

    /// The stream in portions of any size. Returns the state, which does not change any more once
    /// the stream is damaged.
    State feed(const char* bytes, qsizetype size);

private:
    bool readHead();
    /// True if there was a whole frame, or the stream is damaged.
    bool readFrame();
    bool take(ModelStream::Frame kind, const QByteArray& content);
    bool takeProgress(const QByteArray& content);
    bool takeFailure(const QByteArray& content);
    bool takeMesh(const QByteArray& content);
    bool takeNodes(const QByteArray& content);
    bool takeEnd(const QByteArray& content);

    State _state = State::Incomplete;
    SceneAssembler _scene;
    ImportResult _failure;
    double _progress = 0.0;
    bool _hasHead = false;
    QByteArray _bytes;
    qsizetype _done = 0;
};
