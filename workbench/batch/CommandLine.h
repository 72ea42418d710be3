// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/batch/Dump.h"

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

/// What the user asked for on the command line. A value.
struct CommandLine
{
    /// Model files and scene files, in the order in which they are to be opened.
    QStringList files;
    /// Where the picture of the window goes; empty when none is wanted.
    QString screenshot;
    /// Where the scene is saved in the end; empty when it is not.
    QString saveAs;
    /// The size of the window, in pixels of the screen.
    std::optional<QSize> size;
    /// The current frame of the scene; frames count from 1. Nothing leaves it where the scene has
    /// it.
    std::optional<int> frame;
    /// What the tree and the dump are filtered by.
    QString filter;
    /// The subnodes to select in the model that is shown.
    QStringList selectedNames;
    /// The actions to perform then, in order, each a slot such as "selectAll" or, with its
    /// argument, "onActionMoveWorld(1)".
    QStringList actions;
    std::optional<Dump::Format> dump;
    /// light, dark or system; empty means what the preferences say.
    QString theme;
    bool extended = false;
    bool formats = false;
    /// Neither reads nor writes preferences and what else is kept from run to run.
    bool noSettings = false;
    /// Models are read again when their files change.
    bool watch = false;
    bool quit = false;

    /// Whether the program does its work and ends, without waiting for a user.
    bool isBatch() const
    {
        return dump || formats || quit || !screenshot.isEmpty() || !saveAs.isEmpty();
    }

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
