// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/modelstream/ImportResult.h"

#include <QObject>
#include <memory>

class DeepStackThread;

/// Imports one file after the other in a thread of its own, so that windows stay alive meanwhile.
/// All signals come in the thread of the job, which needs an event loop. A job that dies cancels
/// its import and waits for it.
class ModelImportJob : public QObject
{
    Q_OBJECT

public:
    explicit ModelImportJob(QObject* parent = nullptr);
    ~ModelImportJob() override;

    bool isRunning() const;
    /// False, and nothing happens, while an import is running. Otherwise finished() will follow.
    bool start(const QString& path);
    /// The import ends at the next chance, with a result that is cancelled. That may take a while
    /// since a reader in the middle of a file cannot always be stopped. Does nothing when idle.
    void cancel();

signals:
    /// How much is done, from 0 to 1.
    void progress(double fraction);
    void finished(const ImportResult& result);

private:
    class Progress;

    void finish();

    std::unique_ptr<Progress> _progress;
    std::unique_ptr<DeepStackThread> _thread;
    ImportResult _result;
};
