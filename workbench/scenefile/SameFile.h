// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

/// Whether two paths are of one file, by whatever links and spellings. Files that are not there are
/// the same when their paths are; an empty path is no file's.
inline bool isSameFile(const QString& a, const QString& b)
{
    if (a.isEmpty() || b.isEmpty())
        return false;
    const QFileInfo first(a);
    const QFileInfo second(b);
    if (first.exists() && second.exists())
        return first.canonicalFilePath() == second.canonicalFilePath();
    return QDir::cleanPath(first.absoluteFilePath()) == QDir::cleanPath(second.absoluteFilePath());
}
