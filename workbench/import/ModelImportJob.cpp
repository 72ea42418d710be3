// SPDX-License-Identifier: MIT
#include "ModelImportJob.h"

#include "DeepStackThread.h"
#include "ImportProgress.h"
#include "ModelImporter.h"
#include "OneLine.h"

#include <atomic>
#include <utility>

/// Carries the progress from the importing thread to the job's own.
class ModelImportJob::Progress : public ImportProgress
{
public:
    explicit Progress(ModelImportJob* job)
        : m_job(job)
    {
    }

    void cancel() { m_cancelled = true; }

    void report(double fraction) override
    {
        // Finer steps would only fill the event queue.
        constexpr double step = 0.01;
        if (fraction < m_reported + step && fraction < 1.0)
            return;
        m_reported = fraction;
        QMetaObject::invokeMethod(
            m_job, [job = m_job, fraction] { emit job->progress(fraction); }, Qt::QueuedConnection);
    }
    bool isCancelled() const override { return m_cancelled; }

private:
    ModelImportJob* m_job;
    double m_reported = 0.0;
    std::atomic<bool> m_cancelled = false;
};

ModelImportJob::ModelImportJob(QObject* parent)
    : QObject(parent)
{
}

ModelImportJob::~ModelImportJob()
{
    cancel();
    if (m_thread)
        m_thread->wait();
}

bool ModelImportJob::isRunning() const
{
    return m_thread != nullptr;
}

bool ModelImportJob::start(const QString& path)
{
    if (isRunning())
        return false;
    m_progress = std::make_unique<Progress>(this);
    m_result = ImportResult();
    // What finish() finds if the thread cannot be started.
    m_result.error =
        oneLine(path) + QLatin1String(": ") + tr("there is not enough memory to read the file");
    m_thread = std::make_unique<DeepStackThread>(
        [this, path] { m_result = ModelImporter::importModel(path, m_progress.get()); });
    // The result changes hands when the thread has ended: its references are not atomic.
    connect(m_thread.get(), &QThread::finished, this, &ModelImportJob::finish,
            Qt::QueuedConnection);
    m_thread->start();
    if (!m_thread->isRunning() && !m_thread->isFinished())
        QMetaObject::invokeMethod(this, &ModelImportJob::finish, Qt::QueuedConnection);
    return true;
}

void ModelImportJob::cancel()
{
    if (m_progress)
        m_progress->cancel();
}

void ModelImportJob::finish()
{
    m_thread->wait();
    m_thread.reset();
    m_progress.reset();
    const ImportResult result = std::exchange(m_result, ImportResult());
    emit finished(result);
}
