// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>
#include <memory>

class CO_Command;
class QUndoStack;
class TUSceneChangeManager;

/// Executes commands and keeps them for undo. After each command, undo and redo the change manager
/// tells what changed.
class HOST_EXPORT CO_CommandManager
{
public:
    /// The change manager is not owned and must outlive this object.
    explicit CO_CommandManager(TUSceneChangeManager* changeManager);
    ~CO_CommandManager();

    /// Executes the command and keeps it as one undo step under the name. Takes ownership in every
    /// case; null, an empty command and one that fails give false and leave no step.
    bool execute(CO_Command* command, const QString& name);

    /// Keeps a command that has taken effect already. Null is ignored.
    void addExecuted(std::unique_ptr<CO_Command> command, const QString& name);

    /// Between these, steps are gathered into one; CO_CommandAccumScope pairs them.
    void beginAccumulation(const QString& name);
    void endAccumulation();

    /// The history, for menus and lists; owned by the manager. Undo and redo go through it.
    QUndoStack* history() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
