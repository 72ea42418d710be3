// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/batch/CommandLine.h"

class HostSession;
class MO_ElementModule;
class TD_CelVq3d;
class WorkbenchWindow;

/// The exit codes of the program.
enum ExitCode
{
    ExitDone = 0,
    ExitFileError = 1,
    ExitUsage = 2
};

/// Carries out what the command line asks for, in the window that it is given: opens the models,
/// goes to the frame, selects, prints, takes the picture. Data goes to standard output and one
/// line for each thing that went wrong to standard error.
class BatchRun
{
public:
    /// Nothing is owned.
    BatchRun(const CommandLine& commandLine, HostSession& session, WorkbenchWindow& window);

    /// Blocks until the files are read. One that cannot be read does not stop the others.
    ExitCode openFiles();
    void goToFrame();
    void setFilter();
    /// In place of what was selected before.
    ExitCode selectSubnodes();
    /// An action that does not exist, or is not available now, is an error of usage and does not
    /// stop the others.
    ExitCode performActions();
    ExitCode dump();
    ExitCode takeScreenshot();
    /// Unless all went well before, nothing is saved: less than was wanted might replace a good
    /// scene.
    ExitCode save(bool allWentWell);

private:
    /// The selected element, or the first one, which is selected then; null when there is none.
    MO_ElementModule* elementToSelectIn() const;
    bool perform(const QString& action);
    std::vector<ListedNode> listed(const MO_ElementModule& element, const TD_CelVq3d& model,
                                   int frame) const;

    const CommandLine& _commandLine;
    HostSession& _session;
    WorkbenchWindow& _window;
};

/// One line on standard error, with the program's name in front.
void printError(const QString& message);
