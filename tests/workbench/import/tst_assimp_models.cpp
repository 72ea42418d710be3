// SPDX-License-Identifier: MIT
#include "ImportTesting.h"
#include "SceneOutline.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <QDirIterator>
#include <QSet>
#include <QTemporaryFile>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace {

struct Excluded
{
    const char* file;
    const char* reason;
};
/// Only a process of its own with limits protects against these.
constexpr Excluded excluded[] = {
    {"RAW/WithColor.raw", "crashes Assimp"},
    {"RAW/WithTexture.raw", "crashes Assimp"},
    {"invalid/OutOfMemory.off", "makes Assimp take all memory"},
};

/// Its parser of this format complains by itself, past every log.
bool mayWrite(const QString& file)
{
    return file.endsWith(QLatin1String(".ogex"));
}

/// What the process writes to its standard streams while this lives.
class StandardStreams
{
public:
    StandardStreams()
    {
        _file.open();
        flush();
        for (int stream = 0; stream < 2; ++stream) {
            _kept[stream] = dup(stream + 1);
            dup2(_file.handle(), stream + 1);
        }
    }
    ~StandardStreams() { restore(); }

    QByteArray restore()
    {
        flush();
        for (int stream = 0; stream < 2; ++stream) {
            if (_kept[stream] < 0)
                continue;
            dup2(_kept[stream], stream + 1);
            close(_kept[stream]);
            _kept[stream] = -1;
        }
        _file.seek(0);
        return _file.readAll();
    }

private:
    static void flush()
    {
        std::fflush(stdout);
        std::fflush(stderr);
    }

    QTemporaryFile _file;
    int _kept[2];
};

QString whatIsWrong(const ImportResult& result, const QString& path)
{
    if (!result.succeeded()) {
        const bool isLine = result.error.startsWith(path + ": ") && !result.error.contains('\n') &&
                            result.error.size() < path.size() + 250;
        return isLine && result.root == osg::NullFC ? QString() : "malformed: " + result.error;
    }
    QSet<QByteArray> names;
    const QList<osg::NodePtr> nodes = SceneOutline::nodes(result.root);
    for (const osg::NodePtr& node : nodes) {
        const QByteArray name = SceneOutline::nameOf(node);
        if (!name.isNull() && (name.isEmpty() || names.contains(name)))
            return "doubled or empty name: " + name;
        names.insert(name);
        const QByteArray kind = SceneOutline::kindOf(node);
        if (kind == "unknown" || (kind == "key" && name.isNull()))
            return "a node of the wrong kind";
        const osg::GeometryPtr geometry = osg::GeometryPtr::dcast(node->getCore());
        if (geometry == osg::NullFC)
            continue;
        if (node->getNChildren() > 0)
            return "geometry that is no leaf";
        for (osg::UInt32 i = 0; i < geometry->getIndices()->getSize(); ++i) {
            if (geometry->getIndices()->getValue(i) >= geometry->getPositions()->getSize())
                return "an index without a vertex";
        }
        if (geometry->getNormals()->getSize() != geometry->getPositions()->getSize())
            return "vertices without normals";
    }
    if (nodes.size() != result.statistics.nodes())
        return "wrong statistics";
    return {};
}

} // namespace

/// Imports every file of the package, textures and all, as a user might by mistake.
class tst_assimp_models : public QObject
{
    Q_OBJECT

private:
    const QString _models = QStringLiteral(SUBNODEVIEWS_ASSIMP_MODELS);
    int _imported = 0;
    int _refused = 0;
    double _seconds = 0.0;

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        QVERIFY2(!_models.isEmpty() && QDir(_models).exists(),
                 "The package assimp-testmodels is missing: install it and configure again.");
    }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void every_file_is_imported_or_refused_data()
    {
        QTest::addColumn<QStringList>("files");
        for (const QString& folder :
             QDir(_models).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            QStringList files;
            QDirIterator found(_models + "/" + folder, QDir::Files, QDirIterator::Subdirectories);
            while (found.hasNext())
                files += found.next();
            files.sort();
            QTest::newRow(qPrintable(folder)) << files;
        }
    }
    void every_file_is_imported_or_refused()
    {
        QFETCH(const QStringList, files);
        for (const QString& path : files) {
            const QString file = path.mid(_models.size() + 1);
            const auto* const known =
                std::find_if(std::begin(excluded), std::end(excluded),
                             [&](const Excluded& each) { return file == each.file; });
            if (known != std::end(excluded)) {
                qInfo("left out: %s %s", known->file, known->reason);
                continue;
            }
            StandardStreams streams;
            QElapsedTimer timer;
            timer.start();
            const ImportResult result = ModelImporter::importModel(path);
            _seconds += static_cast<double>(timer.nsecsElapsed()) * 1.0e-9;
            const QByteArray written = streams.restore();
            QVERIFY2(written.isEmpty() || mayWrite(file),
                     qPrintable(file + " made it write: " + written));
            const QString wrong = whatIsWrong(result, path);
            QVERIFY2(wrong.isEmpty(), qPrintable(file + ": " + wrong));
            ++(result.succeeded() ? _imported : _refused);
        }
    }

    void most_models_are_imported()
    {
        qInfo("%d files imported, %d refused, in %.1f s", _imported, _refused, _seconds);
        QVERIFY(_imported > 300);
    }
};

QTEST_APPLESS_MAIN(tst_assimp_models)
#include "tst_assimp_models.moc"
