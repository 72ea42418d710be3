// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ImportLimits.h"
#include "workbench/modelstream/ImportResult.h"
#include "workbench/modelstream/ModelStreamReader.h"

#include <QCoreApplication>
#include <QProcess>

class ImportProgress;

/// Reads one file in a process of its own, so that a file which crashes, starves or takes over the
/// reading library costs one message. The process never outlives the call. Used once, in any
/// thread, which need not have an event loop.
class ImportProcess
{
    Q_DECLARE_TR_FUNCTIONS(ImportProcess)

public:
    /// The progress may be null and must outlive this object.
    ImportProcess(QString program, const ImportLimits& limits, ImportProgress* progress);

    /// Where the importing program is: beside the application or, where that is installed, in its
    /// folder of programs that nobody starts by hand. The first of them if it is in neither.
    static QString standardProgram();

    /// Blocks until the file is read, given up, or cancelled through the progress. The errors are
    /// those of the importer, or tell what became of it.
    ImportResult run(const QString& path);

private:
    bool start(const QString& path);
    /// Lets the answer arrive. A message, or an empty one once the process has ended by itself.
    ImportResult receive(const QString& path);
    void receivePortion();
    ImportResult resultOf(const QString& path) const;
    void kill();

    const QString _program;
    const ImportLimits _limits;
    ImportProgress* _progress;
    QProcess _process;
    ModelStreamReader _reader;
};
