// SPDX-License-Identifier: MIT
#include "workbench/scenefile/SceneFileWriter.h"

#include "workbench/modelstream/OneLine.h"
#include "workbench/scenefile/SceneCapture.h"
#include "workbench/scenefile/SceneText.h"

#include <QFileInfo>
#include <QSaveFile>

SceneFileWriter::SceneFileWriter(HostSession& session, const ModelLibrary& library)
    : _session(session)
    , _library(library)
{
}

QByteArray SceneFileWriter::bytes(const QString& folder) const
{
    return sceneText(capturedScene(_session, _library), folder);
}

bool SceneFileWriter::save(const QString& path, QString* error) const
{
    return replaceFile(path, bytes(QFileInfo(path).absolutePath()), error);
}

bool SceneFileWriter::replaceFile(const QString& path, const QByteArray& content, QString* error)
{
    QSaveFile file(path);
    const bool done =
        file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    if (!done && error)
        *error = oneLine(
            tr("%1 cannot be written: %2").arg(QFileInfo(path).fileName(), file.errorString()));
    return done;
}
