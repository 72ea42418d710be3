// SPDX-License-Identifier: MIT
#include "ChildProcesses.h"
#include "ImportTesting.h"
#include "StreamTesting.h"
#include "workbench/modelstream/ImportProcess.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QDir>
#include <QDirIterator>
#include <QTest>

/// Imports every file of the package in a process of its own and holds what comes back against what
/// the importer finds in this one.
class tst_isolated_models : public QObject
{
    Q_OBJECT

private:
    const QString _models = QStringLiteral(SUBNODEVIEWS_ASSIMP_MODELS);
    int _same = 0;

    static ImportResult isolated(const QString& path)
    {
        ImportLimits limits;
        limits.memory = qint64(2) * 1024 * 1024 * 1024;
        limits.workTime = 30;
        return ImportProcess(ImportProcess::standardProgram(), limits, nullptr).run(path);
    }

    static bool isKiller(const QString& file)
    {
        return file.startsWith("RAW/With") || file == "invalid/OutOfMemory.off";
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        QVERIFY2(!_models.isEmpty() && QDir(_models).exists(),
                 "The package assimp-testmodels is missing: install it and configure again.");
    }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void files_that_kill_the_reading_library_cost_one_message()
    {
        const QString hungry = _models + "/invalid/OutOfMemory.off";
        QCOMPARE(isolated(hungry).error, hungry + ": there is not enough memory to read the file");
        // Whether these two crash is a matter of what happens to lie in memory.
        for (const QString& path :
             {_models + "/RAW/WithColor.raw", _models + "/RAW/WithTexture.raw"}) {
            const ImportResult result = isolated(path);
            QVERIFY2(result.succeeded() ||
                         result.error == path + ": reading the file crashed the importer",
                     qPrintable(result.error));
        }
        QCOMPARE(isolated(_models + "/OBJ/box.obj").error, QString());
        QCOMPARE(childProcesses(), 0);
    }

    void every_other_file_arrives_as_it_was_read_data()
    {
        QTest::addColumn<QStringList>("files");
        for (const QString& folder :
             QDir(_models).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
            QStringList files;
            QDirIterator found(_models + '/' + folder, QDir::Files, QDirIterator::Subdirectories);
            while (found.hasNext())
                files += found.next();
            files.sort();
            QTest::newRow(qPrintable(folder)) << files;
        }
    }
    void every_other_file_arrives_as_it_was_read()
    {
        QFETCH(const QStringList, files);
        for (const QString& path : files) {
            if (isKiller(path.mid(_models.size() + 1)))
                continue;
            const ImportResult there = isolated(path);
            const ImportResult here = ModelImporter::importModel(path);
            QCOMPARE(there.error, here.error);
            QVERIFY2(StreamTesting::everything(there) == StreamTesting::everything(here),
                     qPrintable(path));
            _same += here.succeeded();
        }
    }

    void most_models_arrive() { QVERIFY(_same > 300); }
};

QTEST_GUILESS_MAIN(tst_isolated_models)
#include "tst_isolated_models.moc"
