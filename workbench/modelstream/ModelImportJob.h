// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ImportLimits.h"
#include "workbench/modelstream/ImportResult.h"

#include <QObject>
#include <memory>

class QThread;

/// Imports one file after the other, each in a process of its own, and takes what comes back in a
/// thread, so that windows stay alive meanwhile. All signals come in the thread of the job, which
/// needs an event loop. A job that dies kills its import and waits for the end of it.
class ModelImportJob : public QObject
{
    Q_OBJECT

public:
    explicit ModelImportJob(QObject* parent = nullptr);
    ~ModelImportJob() override;

    bool isRunning() const;
    const ImportLimits& limits() const { return _limits; }

    /// For the imports that start from now on.
    void setLimits(const ImportLimits& limits) { _limits = limits; }
    /// The importing program, for the imports that start from now on. As long as none is set, the
    /// one that came with the application.
    void setProgram(const QString& program) { _program = program; }
    /// False, and nothing happens, while an import is running. Otherwise finished() will follow.
    bool start(const QString& path);
    /// The import is killed at once, and ends with a result that is cancelled unless it was
    /// already complete. Does nothing when idle.
    void cancel();

signals:
    /// How much is done, from 0 to 1.
    void progress(double fraction);
    void finished(const ImportResult& result);

private:
    class Progress;

    void finish();

    ImportLimits _limits;
    QString _program;
    std::unique_ptr<Progress> _progress;
    std::unique_ptr<QThread> _thread;
    ImportResult _result;
};
