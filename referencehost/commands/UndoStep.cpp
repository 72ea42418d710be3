// SPDX-License-Identifier: MIT
#include "referencehost/commands/UndoStep.h"

#include "host/commands/CO_Command.h"

UndoStep::UndoStep(std::unique_ptr<CO_Command> executed, const QString& name)
    : QUndoCommand(name)
    , _command(std::move(executed))
{
}

UndoStep::~UndoStep() = default;

void UndoStep::undo()
{
    if (!_command->undo())
        setObsolete(true);
}

void UndoStep::redo()
{
    if (!_takenIn) {
        _takenIn = true;
        return;
    }
    if (!_command->redo())
        setObsolete(true);
}
