// SPDX-License-Identifier: MIT
#include "workbench/import/ModelImporter.h"

#include "workbench/import/AssimpReader.h"
#include "workbench/import/SceneConverter.h"
#include "workbench/modelstream/DeepStackThread.h"
#include "workbench/modelstream/ImportProgress.h"

#include <OpenSG/OSGNode.h>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>
#include <assimp/Importer.hpp>
#include <assimp/importerdesc.h>
#include <exception>
#include <new>

namespace {

constexpr double readingEnds = 0.8;

/// Why the file need not even be handed to a reader; empty if it can be. Readers report these
/// cases poorly, and opening a pipe would block them.
QString whyNotReadable(const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty())
        return ModelImporter::tr("no file was given");
    if (!info.exists())
        return ModelImporter::tr("there is no such file");
    if (info.isDir())
        return ModelImporter::tr("this is a folder, not a file");
    if (!info.isFile())
        return ModelImporter::tr("this is not a regular file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ModelImporter::tr("the file cannot be opened: %1").arg(file.errorString());
    if (info.size() == 0)
        return ModelImporter::tr("the file is empty");
    return {};
}

QString emptyReason()
{
    return ModelImporter::tr("the file holds no model: it has no nodes and no meshes");
}

QString readersReason(const AssimpReader& reader)
{
    // Some readers are content with a file in which they found nothing at all.
    if (reader.error().isEmpty())
        return emptyReason();
    if (reader.isUnknownKind())
        return ModelImporter::tr("the file is of an unknown kind");
    if (reader.error().contains(QLatin1String("bad_alloc")))
        return ModelImporter::tr("there is not enough memory to read the file");
    return ModelImporter::tr("the file cannot be read as a model: %1").arg(reader.error());
}

ImportResult importOnDeepStack(const QString& path, ImportProgress* progress)
{
    const auto isCancelled = [progress] { return progress && progress->isCancelled(); };
    if (isCancelled())
        return ImportResult::cancellation(path);
    const QString obstacle = whyNotReadable(path);
    if (!obstacle.isEmpty())
        return ImportResult::failure(path, obstacle);

    AssimpReader reader(progress, readingEnds);
    const bool isRead = reader.read(QFile::encodeName(path).toStdString());
    if (isCancelled())
        return ImportResult::cancellation(path);
    if (!isRead)
        return ImportResult::failure(path, readersReason(reader));
    if (SceneConverter::isEmpty(reader))
        return ImportResult::failure(path, emptyReason());

    SceneConverter converter(reader, progress, readingEnds);
    ImportResult result;
    result.root = converter.convert();
    if (result.root == osg::NullFC)
        return ImportResult::cancellation(path);
    result.statistics = converter.statistics();
    if (progress)
        progress->report(1.0);
    return result;
}

ImportResult importSafely(const QString& path, ImportProgress* progress)
{
    try {
        return importOnDeepStack(path, progress);
    } catch (const std::bad_alloc&) {
        return ImportResult::outOfMemory(path);
    } catch (const std::exception& exception) {
        return ImportResult::failure(path,
                                     ModelImporter::tr("the file cannot be read as a model: %1")
                                         .arg(QString::fromUtf8(exception.what())));
    } catch (...) {
        return ImportResult::failure(path, ModelImporter::tr("the file cannot be read as a model"));
    }
}

} // namespace

ImportResult ModelImporter::importModel(const QString& path, ImportProgress* progress)
{
    if (osg::NodeRefPtr(osg::Node::create()) == osg::NullFC)
        return ImportResult::failure(path, tr("the scene graph has not been started"));
    ImportResult result;
    if (!DeepStackThread::runAndWait([&] { result = importSafely(path, progress); }))
        return ImportResult::outOfMemory(path);
    return result;
}

QList<ModelFormat> ModelImporter::supportedFormats()
{
    QMap<QString, QStringList> descriptions;
    const Assimp::Importer importer;
    for (std::size_t i = 0; i < importer.GetImporterCount(); ++i) {
        const aiImporterDesc* const reader = importer.GetImporterInfo(i);
        if (!reader || !reader->mName || !reader->mFileExtensions)
            continue;
        QString description = QString::fromUtf8(reader->mName).simplified();
        // What all of them say tells people nothing, nor does an address.
        static const QRegularExpression noise(QStringLiteral(" Importer| Reader| \\(http[^)]*\\)"));
        description.remove(noise);
        const QString extensions = QString::fromLatin1(reader->mFileExtensions).toLower();
        for (const QString& extension : extensions.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            QStringList& known = descriptions[extension];
            if (!known.contains(description))
                known.append(description);
        }
    }
    QList<ModelFormat> formats;
    for (auto it = descriptions.cbegin(); it != descriptions.cend(); ++it) {
        QStringList sorted = it.value();
        sorted.sort();
        formats.append({it.key(), sorted.join(QLatin1String(", "))});
    }
    return formats;
}
