// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class HostSession;
class ModelLibrary;

/// Writes the session's scene into a file.
class SceneFileWriter
{
    Q_DECLARE_TR_FUNCTIONS(SceneFileWriter)

public:
    /// Neither is owned.
    SceneFileWriter(HostSession& session, const ModelLibrary& library);

    /// What a file in the folder would hold; without a folder models are named by their whole path.
    QByteArray bytes(const QString& folder) const;
    /// The file is replaced as a whole or not at all. When it is not, the error, unless that is
    /// null, becomes one line that begins with the file's name.
    bool save(const QString& path, QString* error) const;

    static bool replaceFile(const QString& path, const QByteArray& content, QString* error);

private:
    HostSession& _session;
    const ModelLibrary& _library;
};
