// SPDX-License-Identifier: MIT
#include "workbench/files/ModelWatch.h"

#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/session/HostSession.h"
#include "workbench/files/ModelReload.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>
#include <utility>

namespace {

constexpr int patienceInMilliseconds = 300;

} // namespace

ModelWatch::ModelWatch(HostSession& session, ModelReload& reload, QObject* parent)
    : QObject(parent)
    , _reload(reload)
{
    _refresh.setSingleShot(true);
    _patience.setSingleShot(true);
    _patience.setInterval(patienceInMilliseconds);
    const auto refresh = [this] { _refresh.start(); };
    const TUSceneChangeManager* changes = session.context().changeManager();
    using Changes = TUSceneChangeManager;
    connect(changes, &Changes::currentSceneChanged, this, refresh);
    connect(changes, &Changes::networkChanged, this, refresh);
    connect(changes, &Changes::nodesChanged, this, refresh);
    connect(&_refresh, &QTimer::timeout, this, &ModelWatch::watchScene);
    connect(&_watcher, &QFileSystemWatcher::fileChanged, this, &ModelWatch::compare);
    connect(&_watcher, &QFileSystemWatcher::directoryChanged, this, &ModelWatch::compare);
    connect(&_patience, &QTimer::timeout, this, &ModelWatch::reloadChanged);
    watchScene();
}

ModelWatch::Stamp ModelWatch::stampOf(const QString& path)
{
    // A file that was renamed into its place may have the time and the size of the one before.
    struct stat status = {};
    const bool exists = ::stat(QFile::encodeName(path).constData(), &status) == 0;
    const QFileInfo info(path);
    return exists ? Stamp{info.lastModified(), info.size(), static_cast<quint64>(status.st_ino)}
                  : Stamp();
}

void ModelWatch::setEnabled(bool enabled)
{
    _enabled = enabled;
    watchScene();
}

void ModelWatch::setPatience(int milliseconds)
{
    _patience.setInterval(milliseconds);
}

void ModelWatch::watchScene()
{
    const QStringList files = _enabled ? _reload.filesOfScene() : QStringList();
    QHash<QString, Stamp> stamps;
    // A file that is gone for a moment is found again through its folder.
    QSet<QString> wanted;
    for (const QString& file : files) {
        const auto known = _stamps.constFind(file);
        stamps.insert(file, known == _stamps.constEnd() ? stampOf(file) : *known);
        const QFileInfo info(file);
        if (info.exists())
            wanted.insert(file);
        if (info.dir().exists())
            wanted.insert(info.absolutePath());
    }
    _stamps = stamps;
    const QStringList watched = _watcher.files() + _watcher.directories();
    QStringList unwanted;
    for (const QString& path : watched) {
        if (!wanted.remove(path))
            unwanted += path;
    }
    if (!unwanted.isEmpty())
        _watcher.removePaths(unwanted);
    if (!wanted.isEmpty())
        _watcher.addPaths(wanted.values());
}

void ModelWatch::compare()
{
    bool isOther = false;
    for (auto it = _stamps.begin(); it != _stamps.end(); ++it) {
        const Stamp stamp = stampOf(it.key());
        if (stamp == *it)
            continue;
        *it = stamp;
        isOther = true;
        _changed.insert(it.key());
    }
    if (!isOther)
        return;
    // The watcher lets go of a file that was replaced.
    watchScene();
    _patience.start();
}

void ModelWatch::reloadChanged()
{
    QStringList files;
    for (const QString& file : std::exchange(_changed, {})) {
        if (_stamps.contains(file) && QFileInfo(file).isFile())
            files += file;
    }
    files.sort();
    if (!files.isEmpty())
        _reload.reload(files, ModelReload::Failures::TellNew);
}
