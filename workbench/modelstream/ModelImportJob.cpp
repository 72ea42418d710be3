// SPDX-License-Identifier: MIT
#include "workbench/modelstream/ModelImportJob.h"

#include "workbench/modelstream/ImportProcess.h"
#include "workbench/modelstream/ImportProgress.h"

#include <QThread>
#include <atomic>
#include <utility>

/// Carries the progress from the importing thread to the job's own.
class ModelImportJob::Progress : public ImportProgress
{
public:
    explicit Progress(ModelImportJob* job)
        : _job(job)
    {
    }

    void cancel() { _cancelled = true; }

    void report(double fraction) override
    {
        // Finer steps would only fill the event queue.
        constexpr double step = 0.01;
        if (fraction < _reported + step && fraction < 1.0)
            return;
        _reported = fraction;
        QMetaObject::invokeMethod(
            _job, [job = _job, fraction] { emit job->progress(fraction); }, Qt::QueuedConnection);
    }
    bool isCancelled() const override { return _cancelled; }

private:
    ModelImportJob* _job;
    double _reported = 0.0;
    std::atomic<bool> _cancelled = false;
};

ModelImportJob::ModelImportJob(QObject* parent)
    : QObject(parent)
{
}

ModelImportJob::~ModelImportJob()
{
    cancel();
    if (_thread)
        _thread->wait();
}

bool ModelImportJob::isRunning() const
{
    return _thread != nullptr;
}

bool ModelImportJob::start(const QString& path)
{
    if (isRunning())
        return false;
    _progress = std::make_unique<Progress>(this);
    // What finish() finds if the thread cannot be started.
    _result = ImportResult::outOfMemory(path);
    const QString program = _program.isEmpty() ? ImportProcess::standardProgram() : _program;
    _thread.reset(QThread::create([this, path, program, limits = _limits] {
        _result = ImportProcess(program, limits, _progress.get()).run(path);
    }));
    // The result changes hands when the thread has ended: its references are not atomic.
    connect(_thread.get(), &QThread::finished, this, &ModelImportJob::finish, Qt::QueuedConnection);
    _thread->start();
    if (!_thread->isRunning() && !_thread->isFinished())
        QMetaObject::invokeMethod(this, &ModelImportJob::finish, Qt::QueuedConnection);
    return true;
}

void ModelImportJob::cancel()
{
    if (_progress)
        _progress->cancel();
}

void ModelImportJob::finish()
{
    _thread->wait();
    _thread.reset();
    _progress.reset();
    const ImportResult result = std::exchange(_result, ImportResult());
    emit finished(result);
}
