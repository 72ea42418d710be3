// SPDX-License-Identifier: MIT
#include "host/commands/CO_CommandManager.h"

#include "host/commands/CO_Command.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/commands/UndoStep.h"

#include <QUndoStack>

struct CO_CommandManager::Private
{
    explicit Private(TUSceneChangeManager* manager)
        : changeManager(manager)
    {
    }

    TUSceneChangeManager* changeManager;
    QUndoStack history;
};

CO_CommandManager::CO_CommandManager(TUSceneChangeManager* changeManager)
    : d(std::make_unique<Private>(changeManager))
{
    // Listeners are told when the history has finished its step, not while the command runs: one
    // of them may clear the history, and with it the command.
    QObject::connect(&d->history, &QUndoStack::indexChanged, changeManager,
                     &TUSceneChangeManager::notify);
}

CO_CommandManager::~CO_CommandManager()
{
    // A history that dies empties itself first, which is no change of the scene.
    d->history.disconnect(d->changeManager);
}

bool CO_CommandManager::execute(CO_Command* command, const QString& name)
{
    std::unique_ptr<CO_Command> owned(command);
    if (!owned || owned->empty() || !owned->execute())
        return false;
    d->history.push(new UndoStep(std::move(owned), name));
    return true;
}

QUndoStack* CO_CommandManager::history() const
{
    return &d->history;
}
