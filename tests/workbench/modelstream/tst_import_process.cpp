// SPDX-License-Identifier: MIT
#include "ChildProcesses.h"
#include "ImportTesting.h"
#include "StreamTesting.h"
#include "workbench/modelstream/ImportProcess.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <sys/stat.h>

class tst_import_process : public QObject
{
    Q_OBJECT

private:
    ImportFolder _folder;
    QString _model;

    static ImportResult run(const QString& path, const ImportLimits& limits = {},
                            const QString& program = ImportProcess::standardProgram(),
                            ImportProgress* progress = nullptr)
    {
        return ImportProcess(program, limits, progress).run(path);
    }

    /// What is told when the importer is a script with these lines.
    QString reasonWith(const QByteArray& script, const ImportLimits& limits = {}) const
    {
        const QString program = _folder.write("importer.sh", "#!/bin/sh\n" + script + "\n");
        if (!QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner))
            return {};
        const ImportResult result = run("some.gltf", limits, program);
        return result.root == osg::NullFC ? result.error : "(succeeded)";
    }

    /// A file that keeps the importer busy for long.
    QString slowModel() const
    {
        QByteArray text = "xof 0303txt 0032\n";
        for (int i = 0; i < 2000000; ++i)
            text += "Frame A { }\n";
        return _folder.write("slow.x", text);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _model = _folder.write("small.gltf", gltf({R"({"name":"Arm","mesh":0})"}));
    }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }
    void cleanup() { QCOMPARE(childProcesses(), 0); }

    void a_model_arrives_as_if_it_had_been_read_here()
    {
        const ImportResult here = ModelImporter::importModel(_model);
        RecordingProgress progress;
        const ImportResult there = run(_model, {}, ImportProcess::standardProgram(), &progress);
        QCOMPARE(there.error, QString());
        QCOMPARE(StreamTesting::everything(there), StreamTesting::everything(here));
        QVERIFY(std::is_sorted(progress.fractions.begin(), progress.fractions.end()));
        QCOMPARE(progress.fractions.last(), 1.0);
    }

    void messages_are_those_of_the_importer_data()
    {
        QTest::addColumn<QString>("path");
        QVERIFY(QDir(_folder.path(".")).mkdir("folder.gltf"));
        QCOMPARE(mkfifo(_folder.path("pipe.gltf").toLocal8Bit().constData(), 0600), 0);
        QTest::newRow("no path") << QString();
        QTest::newRow("missing") << _folder.path("absent.gltf");
        QTest::newRow("relative") << "absent.gltf";
        QTest::newRow("like an option") << "--memory";
        QTest::newRow("folder") << _folder.path("folder.gltf");
        QTest::newRow("pipe") << _folder.path("pipe.gltf");
        QTest::newRow("empty") << _folder.write("empty.gltf", "");
        QTest::newRow("unknown kind") << _folder.write("notes.unknown", "Some words.\n");
        QTest::newRow("damaged") << _folder.write("cut.gltf", "{\"asset\":");
        QTest::newRow("line break") << "two\nlines.gltf";
        QTest::newRow("other scripts") << QStringLiteral("腕 ä.gltf");
    }
    void messages_are_those_of_the_importer()
    {
        QFETCH(const QString, path);
        const ImportResult here = ModelImporter::importModel(path);
        const ImportResult there = run(path);
        QVERIFY(!there.succeeded());
        QCOMPARE(there.error, here.error);
        QVERIFY(!there.cancelled);
    }

    void a_path_with_letters_of_all_scripts_is_read()
    {
        QCOMPARE(
            run(_folder.write(QStringLiteral("腕 ä.gltf"), gltf({R"({"name":"Arm","mesh":0})"})))
                .error,
            QString());
    }

    void a_program_that_is_missing()
    {
        QCOMPARE(run(_model, {}, "/nowhere/importer").error,
                 _model + ": the importer /nowhere/importer is missing");
        QCOMPARE(run(_model, {}, _model).error,
                 _model + ": the importer " + _model + " cannot be started");
    }

    void an_importer_that_misbehaves_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("reason");
        const QString damaged = "the importer gave an answer that makes no sense";
        const QString crashed = "reading the file crashed the importer";
        const QString starved = "there is not enough memory to read the file";
        const QByteArray real = QFile::encodeName(ImportProcess::standardProgram());
        const QByteArray answer =
            "\"" + real + "\" \"$1\" \"$2\" \"$3\" \"$4\" -- \"" + QFile::encodeName(_model) + "\"";
        QTest::newRow("no answer") << QByteArray("exit 0") << damaged;
        QTest::newRow("other words") << QByteArray("echo Hello") << damaged;
        QTest::newRow("words without end") << QByteArray("exec cat /dev/zero") << damaged;
        QTest::newRow("half an answer") << answer + " | head -c 200" << damaged;
        QTest::newRow("two answers") << answer + "; " + answer << damaged;
        QTest::newRow("another version")
            << QByteArray(R"(printf 'Subnodes\002\000\000\000'; exec sleep 100)") << damaged;
        QTest::newRow("message about another file")
            << "\"" + real + "\" \"$1\" \"$2\" \"$3\" \"$4\" -- other.gltf" << damaged;
        QTest::newRow("fails") << QByteArray("exit 1") << crashed;
        QTest::newRow("crashes") << QByteArray("kill -SEGV $$") << crashed;
        QTest::newRow("crashes after its answer") << answer + "; kill -ABRT $$" << crashed;
        QTest::newRow("killed for memory") << QByteArray("kill -KILL $$") << starved;
        QTest::newRow("ends for memory") << QByteArray("exit 3") << starved;
        QTest::newRow("ends for time")
            << QByteArray("exit 4") << "reading the file took longer than 300 seconds";
        QTest::newRow("killed for time")
            << QByteArray("kill -XCPU $$") << "reading the file took longer than 300 seconds";
    }
    void an_importer_that_misbehaves()
    {
        QFETCH(const QByteArray, script);
        QFETCH(const QString, reason);
        QCOMPARE(reasonWith(script), "some.gltf: " + reason);
    }

    void an_importer_that_only_waits_is_stopped()
    {
        ImportLimits limits;
        limits.wholeTime = 1;
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(reasonWith("exec sleep 100", limits),
                 "some.gltf: reading the file took longer than 1 seconds");
        QVERIFY(timer.elapsed() < 10000);
    }

    void reading_stops_when_it_takes_too_much_work()
    {
        ImportLimits limits;
        limits.workTime = 1;
        const QString path = slowModel();
        QCOMPARE(run(path, limits).error, path + ": reading the file took longer than 1 seconds");
    }

    void reading_stops_when_it_takes_too_much_memory()
    {
        ImportLimits limits;
        // The stack for deep hierarchies counts where addresses do.
        limits.memory = qint64(800) * 1024 * 1024;
        const QString path = slowModel();
        QCOMPARE(run(path, limits).error, path + ": there is not enough memory to read the file");
        QCOMPARE(run(_model, limits).error, QString());
    }

    void a_cancelled_import_ends_at_once()
    {
        class CancelledSoon : public ImportProgress
        {
        public:
            CancelledSoon() { _timer.start(); }
            void report(double) override {}
            bool isCancelled() const override { return _timer.hasExpired(500); }

        private:
            QElapsedTimer _timer;
        };
        const QString path = slowModel();
        CancelledSoon progress;
        QElapsedTimer timer;
        timer.start();
        const ImportResult result = run(path, {}, ImportProcess::standardProgram(), &progress);
        QVERIFY(timer.elapsed() < 2000);
        QVERIFY(result.cancelled);
        QCOMPARE(result.error, path + ": the import was cancelled");
        QCOMPARE(childProcesses(), 0);
    }

    void an_import_that_is_cancelled_before_it_begins_starts_nothing()
    {
        RecordingProgress progress;
        progress.fractions = {0.0};
        progress.cancelAt = 0.0;
        QVERIFY(run(_model, {}, "/nowhere/importer", &progress).cancelled);
    }
};

QTEST_GUILESS_MAIN(tst_import_process)
#include "tst_import_process.moc"
