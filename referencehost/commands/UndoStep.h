// SPDX-License-Identifier: MIT
#pragma once

#include <QUndoCommand>
#include <memory>

class CO_Command;

/// A command in the undo history. The command was executed before the step was made, so the redo
/// by which the history takes a step in does nothing. A step whose command can no longer do
/// anything, because what it changed is gone, drops out of the history. Owned by the history.
class UndoStep : public QUndoCommand
{
public:
    UndoStep(std::unique_ptr<CO_Command> executed, const QString& name);
    ~UndoStep() override;

    void undo() override;
    void redo() override;

private:
    std::unique_ptr<CO_Command> _command;
    bool _takenIn = false;
};
