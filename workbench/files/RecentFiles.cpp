// SPDX-License-Identifier: MIT
#include "workbench/files/RecentFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <algorithm>

namespace {

constexpr int mostPaths = 10;
const QString settingsKey = QStringLiteral("recentFiles");

} // namespace

RecentFiles::RecentFiles(QSettings* store, QObject* parent)
    : QObject(parent)
    , _store(store)
{
    if (!_store)
        return;
    // Whatever else wrote the settings, only what this list could hold is taken.
    const QStringList stored = _store->value(settingsKey).toStringList();
    for (const QString& path : stored) {
        if (QDir::isAbsolutePath(path) && !_paths.contains(path) && _paths.size() < mostPaths)
            _paths += path;
    }
}

void RecentFiles::add(const QString& path)
{
    if (path.isEmpty())
        return;
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QStringList paths = _paths;
    paths.removeAll(absolute);
    paths.prepend(absolute);
    setPaths(paths.mid(0, mostPaths));
}

void RecentFiles::clearMissing()
{
    QStringList paths = _paths;
    paths.removeIf([](const QString& path) { return !QFileInfo::exists(path); });
    setPaths(paths);
}

void RecentFiles::clear()
{
    setPaths({});
}

void RecentFiles::setPaths(const QStringList& paths)
{
    if (paths == _paths)
        return;
    _paths = paths;
    if (_store)
        _store->setValue(settingsKey, _paths);
    emit changed();
}
