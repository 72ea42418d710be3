// SPDX-License-Identifier: MIT
#include "workbench/files/Autosave.h"

#include "workbench/scenefile/SceneFileWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QUuid>
#include <algorithm>
#include <optional>

namespace {

constexpr int quietMilliseconds = 2000;
constexpr int longestMilliseconds = 30000;
constexpr QLatin1String suffix(".autosave");
constexpr QLatin1String lockSuffix(".lock");
constexpr QLatin1String formatName("subnode-autosave");

/// Null when the owner of the copy lives. A lock never grows old by itself.
std::unique_ptr<QLockFile> lockOf(const QString& file)
{
    auto lock = std::make_unique<QLockFile>(file + lockSuffix);
    lock->setStaleLockTime(0);
    return lock->tryLock(0) ? std::move(lock) : nullptr;
}

QByteArray contentOf(const SceneDocument::Unsaved& scene)
{
    const QJsonObject object{
        {QStringLiteral("format"), formatName},
        {QStringLiteral("path"), scene.path},
        {QStringLiteral("seenOnDisk"), QString::fromLatin1(scene.seenOnDisk.toHex())},
        {QStringLiteral("needsOtherName"), scene.needsOtherName},
        {QStringLiteral("scene"), QString::fromUtf8(scene.content)}};
    return QJsonDocument(object).toJson();
}

std::optional<SceneDocument::Unsaved> unsavedIn(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    if (object.value(QLatin1String("format")).toString() != formatName)
        return std::nullopt;
    return SceneDocument::Unsaved{
        object.value(QLatin1String("scene")).toString().toUtf8(),
        object.value(QLatin1String("path")).toString(),
        QByteArray::fromHex(object.value(QLatin1String("seenOnDisk")).toString().toLatin1()),
        object.value(QLatin1String("needsOtherName")).toBool()};
}

} // namespace

Autosave::Autosave(SceneDocument& document, const QString& folder, QObject* parent)
    : QObject(parent)
    , _document(document)
    , _folder(folder)
    , _file(folder + u'/' + QUuid::createUuid().toString(QUuid::WithoutBraces) + suffix)
    , _quiet(quietMilliseconds)
    , _longest(longestMilliseconds)
{
    _timer.setSingleShot(true);
    connect(&_timer, &QTimer::timeout, this, &Autosave::write);
    connect(&document, &SceneDocument::contentChanged, this, &Autosave::schedule);
    connect(&document, &SceneDocument::modifiedChanged, this, &Autosave::schedule);
}

Autosave::~Autosave()
{
    remove();
}

QString Autosave::defaultFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
           QStringLiteral("/autosave");
}

QList<Autosave::Abandoned> Autosave::abandoned() const
{
    QList<Abandoned> copies;
    const QFileInfoList files =
        QDir(_folder).entryInfoList({QStringLiteral("*") + suffix}, QDir::Files, QDir::Time);
    for (const QFileInfo& info : files) {
        const QString file = info.absoluteFilePath();
        // Taken for the moment, and left for whoever takes it up.
        if (const std::unique_ptr<QLockFile> lock = lockOf(file)) {
            if (const std::optional<SceneDocument::Unsaved> scene = unsavedIn(file))
                copies.append({file, *scene, info.lastModified()});
        }
    }
    return copies;
}

void Autosave::setDelays(int quiet, int longest)
{
    _quiet = quiet;
    _longest = longest;
}

void Autosave::schedule()
{
    if (!_document.isModified()) {
        remove();
        return;
    }
    if (!_timer.isActive())
        _sinceFirstChange.start();
    const qint64 left = _longest - _sinceFirstChange.elapsed();
    _timer.start(static_cast<int>(std::clamp<qint64>(left, 0, _quiet)));
}

bool Autosave::write()
{
    QString error;
    bool done = QDir().mkpath(_folder);
    if (!done)
        error = tr("the folder %1 cannot be made").arg(_folder);
    if (done && !_lock) {
        _lock = lockOf(_file);
        done = _lock != nullptr;
        if (!done)
            error = tr("%1 cannot be locked").arg(_file);
    }
    done = done && SceneFileWriter::replaceFile(_file, contentOf(_document.unsaved()), &error);
    if (!done && !_failing)
        emit failed(tr("The scene is not kept safe: %1").arg(error));
    _failing = !done;
    return done;
}

void Autosave::remove()
{
    _timer.stop();
    // The lock goes last, so that the copy never looks abandoned.
    if (_lock)
        QFile::remove(_file);
    _lock.reset();
}

bool Autosave::takeUp(const Abandoned& copy)
{
    if (_taken || _document.isOpening())
        return false;
    _taken = lockOf(copy.file);
    if (!_taken || !QFileInfo::exists(copy.file)) {
        _taken.reset();
        return false;
    }
    connect(
        &_document, &SceneDocument::openFinished, this,
        [this, file = copy.file](bool ok) {
            if (ok && write())
                QFile::remove(file);
            _taken.reset();
        },
        Qt::SingleShotConnection);
    return _document.takeUp(copy.scene);
}

void Autosave::discard(const Abandoned& copy)
{
    if (const std::unique_ptr<QLockFile> lock = lockOf(copy.file))
        QFile::remove(copy.file);
}
