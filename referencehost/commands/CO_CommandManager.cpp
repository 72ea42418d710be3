// SPDX-License-Identifier: MIT
#include "host/commands/CO_CommandManager.h"

#include "host/commands/CO_Command.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/commands/CommandSequence.h"
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
    int openScopes = 0;
    QString accumulatedName;
    std::unique_ptr<CommandSequence> accumulated;
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
    addExecuted(std::move(owned), name);
    return true;
}

void CO_CommandManager::addExecuted(std::unique_ptr<CO_Command> command, const QString& name)
{
    if (!command)
        return;
    if (d->openScopes > 0)
        d->accumulated->append(std::move(command));
    else
        d->history.push(new UndoStep(std::move(command), name));
}

void CO_CommandManager::beginAccumulation(const QString& name)
{
    if (d->openScopes++ > 0)
        return;
    d->accumulatedName = name;
    d->accumulated = std::make_unique<CommandSequence>();
}

void CO_CommandManager::endAccumulation()
{
    if (--d->openScopes > 0)
        return;
    if (std::unique_ptr<CommandSequence> gathered = std::move(d->accumulated); !gathered->empty())
        addExecuted(std::move(gathered), d->accumulatedName);
}

QUndoStack* CO_CommandManager::history() const
{
    return &d->history;
}
