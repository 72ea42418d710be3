// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

/// What the user asked for on the command line. A value.
struct CommandLine
{
    QStringList models;
    /// Where the picture of the window goes; empty when none is wanted.
    QString screenshot;
    /// The size of the window, in pixels of the screen.
    std::optional<QSize> size;
    /// The current frame of the scene; frames count from 1.
    int frame = 1;
    /// The subnodes to select in the model that is shown.
    QStringList selectedNames;
    /// The actions to perform then, in order, each a slot such as "selectAll" or, with its
    /// argument, "onActionMoveWorld(1)".
    QStringList actions;
    /// light, dark or system.
    QString theme = QStringLiteral("system");
    bool extended = false;
    bool dump = false;
    bool formats = false;

    /// Whether the program does its work and ends, without waiting for a user.
    bool isBatch() const { return dump || formats || !screenshot.isEmpty(); }

    struct Outcome;
    /// Reads the arguments, the first of which is the program's name. Needs no application.
    static Outcome parse(const QStringList& arguments);
};

/// The command line, or, where it is empty, what there is to say instead: help or version when the
/// text is no error, and otherwise one line that says what is wrong.
struct CommandLine::Outcome
{
    std::optional<CommandLine> commandLine;
    QString text;
    bool isError = false;
};
