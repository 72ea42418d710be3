// SPDX-License-Identifier: MIT
#include "workbench/modelstream/ImportProcess.h"

#include "workbench/modelstream/ImportExit.h"
#include "workbench/modelstream/ImportProgress.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <csignal>
#include <utility>

namespace {

/// How long a request to cancel may go unnoticed.
constexpr int patienceInMilliseconds = 20;

ImportResult outOfTime(const QString& path, int seconds)
{
    return ImportResult::failure(
        path, ImportProcess::tr("reading the file took longer than %1 seconds").arg(seconds));
}

ImportResult damaged(const QString& path)
{
    return ImportResult::failure(
        path, ImportProcess::tr("the importer gave an answer that makes no sense"));
}

} // namespace

ImportProcess::ImportProcess(QString program, const ImportLimits& limits, ImportProgress* progress)
    : _program(std::move(program))
    , _limits(limits)
    , _progress(progress)
    , _reader(limits.memory)
{
}

QString ImportProcess::standardProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString beside = folder + QLatin1String("/subnode-import");
    const QString installed = folder + QLatin1String("/../libexec/subnode-views/subnode-import");
    return !QFileInfo::exists(beside) && QFileInfo::exists(installed) ? installed : beside;
}

ImportResult ImportProcess::run(const QString& path)
{
    if (_progress && _progress->isCancelled())
        return ImportResult::cancellation(path);
    if (!start(path)) {
        return ImportResult::failure(path,
                                     QFileInfo::exists(_program)
                                         ? tr("the importer %1 cannot be started").arg(_program)
                                         : tr("the importer %1 is missing").arg(_program));
    }
    const ImportResult given = receive(path);
    kill();
    return given.succeeded() ? resultOf(path) : given;
}

bool ImportProcess::start(const QString& path)
{
    _process.setStandardInputFile(QProcess::nullDevice());
    _process.setStandardErrorFile(QProcess::nullDevice());
    _process.start(_program,
                   {QStringLiteral("--memory"), QString::number(_limits.memory),
                    QStringLiteral("--seconds"), QString::number(_limits.workTime),
                    QStringLiteral("--"), path},
                   QIODevice::ReadOnly);
    return _process.waitForStarted();
}

ImportResult ImportProcess::receive(const QString& path)
{
    QElapsedTimer timer;
    timer.start();
    while (_process.state() != QProcess::NotRunning || _process.bytesAvailable() > 0) {
        _process.waitForReadyRead(patienceInMilliseconds);
        receivePortion();
        if (_progress && _progress->isCancelled())
            return ImportResult::cancellation(path);
        if (timer.hasExpired(qint64(_limits.wholeTime) * 1000))
            return outOfTime(path, _limits.wholeTime);
        if (_reader.state() == ModelStreamReader::State::Damaged)
            return damaged(path);
    }
    return {};
}

void ImportProcess::receivePortion()
{
    const QByteArray portion = _process.readAllStandardOutput();
    if (portion.isEmpty())
        return;
    const double before = _reader.progress();
    _reader.feed(portion.constData(), portion.size());
    if (_progress && _reader.progress() > before)
        _progress->report(_reader.progress());
}

ImportResult ImportProcess::resultOf(const QString& path) const
{
    const int code = _process.exitCode();
    if (_process.exitStatus() == QProcess::CrashExit) {
        // That is what a system does which has run out of memory.
        if (code == SIGKILL)
            return ImportResult::outOfMemory(path);
        if (code == SIGXCPU)
            return outOfTime(path, _limits.workTime);
    }
    if (_process.exitStatus() == QProcess::NormalExit && code == ImportOutOfMemory)
        return ImportResult::outOfMemory(path);
    if (_process.exitStatus() == QProcess::NormalExit && code == ImportOutOfTime)
        return outOfTime(path, _limits.workTime);
    if (_process.exitStatus() == QProcess::CrashExit || code != ImportDone)
        return ImportResult::failure(path, tr("reading the file crashed the importer"));
    if (_reader.state() != ModelStreamReader::State::Complete)
        return damaged(path);

    ImportResult result = _reader.result();
    if (result.succeeded())
        return result;
    const QString start = ImportResult::errorStart(path);
    if (!result.error.startsWith(start))
        return damaged(path);
    const bool isCancelled = result.cancelled;
    result = ImportResult::failure(path, result.error.mid(start.size()));
    result.cancelled = isCancelled;
    return result;
}

void ImportProcess::kill()
{
    if (_process.state() == QProcess::NotRunning)
        return;
    _process.kill();
    _process.waitForFinished(-1);
}
