// SPDX-License-Identifier: MIT
#pragma once

#include "host/commands/CO_Command.h"

#include <memory>
#include <vector>

/// Commands that make one. They are executed in the order of appending and undone in reverse.
class HOST_EXPORT CO_MacroCommand : public CO_Command
{
public:
    ~CO_MacroCommand() override;

    /// Takes ownership; null is ignored.
    void append(CO_Command* command);
    /// True when every part is empty.
    bool empty() const override;
    bool undo() override;
    bool redo() override;

protected:
    CO_MacroCommand();
    /// The parts that took effect when it was last executed, in order, are those that undo and redo
    /// work on.
    std::vector<std::unique_ptr<CO_Command>>& parts() { return _parts; }
    void undoParts(std::size_t count);

private:
    std::vector<std::unique_ptr<CO_Command>> _parts;
};

/// Succeeds when any part does. Parts that fail are dropped.
class HOST_EXPORT CO_OrCommand : public CO_MacroCommand
{
public:
    /// Whether the parts are executed already when they are appended.
    explicit CO_OrCommand(bool executed);
    ~CO_OrCommand() override;

    bool execute() override;

private:
    bool _executed;
};

/// Succeeds when all parts that are not empty do; otherwise those before the one that failed are
/// undone.
class HOST_EXPORT CO_AndCommand : public CO_MacroCommand
{
public:
    CO_AndCommand();
    ~CO_AndCommand() override;

    bool execute() override;
};
