// SPDX-License-Identifier: MIT
#include "workbench/modelstream/ModelImportJob.h"

#include "ChildProcesses.h"
#include "ImportTesting.h"
#include "SceneOutline.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <algorithm>

class tst_model_import_job : public QObject
{
    Q_OBJECT

private:
    ImportFolder _folder;
    QString _small;
    QString _large;
    QString _slow;

    /// What the job tells of the file; empty if it can be read.
    static QString errorOf(ModelImportJob& job, const QString& path)
    {
        QString error = "(never finished)";
        QEventLoop loop;
        connect(&job, &ModelImportJob::finished, &loop, [&](const ImportResult& result) {
            error = result.error;
            loop.quit();
        });
        if (job.start(path))
            loop.exec();
        return error;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _small = _folder.write("small.gltf", gltf({R"({"name":"Arm","mesh":0})"}));
        QByteArray text = "xof 0303txt 0032\nFrame Top {\n";
        for (int i = 0; i < 50000; ++i)
            text += "Frame Arm { }\n";
        _large = _folder.write("large.x", text + "}\n");
        text.clear();
        for (int i = 0; i < 1000000; ++i)
            text += "Frame A { }\n";
        _slow = _folder.write("slow.x", "xof 0303txt 0032\n" + text);
    }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void a_file_is_imported()
    {
        ModelImportJob job;
        QList<double> fractions;
        QList<ImportResult> results;
        bool inOwnThread = true;
        connect(&job, &ModelImportJob::progress, [&](double fraction) {
            fractions += fraction;
            inOwnThread = inOwnThread && QThread::currentThread() == thread();
        });
        connect(&job, &ModelImportJob::finished, [&](const ImportResult& result) {
            results += result;
            inOwnThread = inOwnThread && QThread::currentThread() == thread();
        });
        QVERIFY(job.start(_small));
        QVERIFY(job.isRunning());
        QTRY_COMPARE(results.size(), 1);
        QVERIFY(!job.isRunning());
        QVERIFY(inOwnThread);
        QCOMPARE(fractions.last(), 1.0);
        QCOMPARE(SceneOutline::lines(results[0].root),
                 QByteArrayList({"key Arm", ".geometry Triangle"}));
    }

    void an_error_is_told()
    {
        ModelImportJob job;
        QString error;
        connect(&job, &ModelImportJob::finished,
                [&](const ImportResult& result) { error = result.error; });
        QVERIFY(job.start("absent.gltf"));
        QTRY_COMPARE(error, "absent.gltf: there is no such file");
    }

    void a_second_file_waits_for_the_first()
    {
        ModelImportJob job;
        int finished = 0;
        connect(&job, &ModelImportJob::finished, [&] {
            // A job is free again when it tells that it is.
            if (++finished == 1)
                QVERIFY(job.start(_small));
        });
        QVERIFY(job.start(_small));
        QVERIFY(!job.start(_small));
        QTRY_COMPARE(finished, 2);
    }

    void a_cancelled_import_ends_at_once()
    {
        ModelImportJob job;
        QList<ImportResult> results;
        connect(&job, &ModelImportJob::finished,
                [&](const ImportResult& result) { results += result; });
        job.cancel();
        QVERIFY(job.start(_slow));
        QTRY_COMPARE(childProcesses(), 1);
        QElapsedTimer timer;
        timer.start();
        job.cancel();
        QTRY_COMPARE(results.size(), 1);
        QVERIFY(timer.elapsed() < 1000);
        QCOMPARE(childProcesses(), 0);
        QVERIFY(results[0].cancelled);
        QVERIFY(results[0].root == osg::NullFC);
    }

    void an_import_may_be_cancelled_before_its_process_is_there()
    {
        ModelImportJob job;
        QList<ImportResult> results;
        connect(&job, &ModelImportJob::finished,
                [&](const ImportResult& result) { results += result; });
        QVERIFY(job.start(_large));
        job.cancel();
        QTRY_COMPARE(results.size(), 1);
        QVERIFY(results[0].cancelled);
    }

    void a_job_that_dies_leaves_no_process()
    {
        {
            ModelImportJob job;
            QVERIFY(job.start(_slow));
            QTRY_COMPARE(childProcesses(), 1);
        }
        QCOMPARE(childProcesses(), 0);
    }

    void limits_are_kept()
    {
        ModelImportJob job;
        ImportLimits limits;
        limits.workTime = 1;
        job.setLimits(limits);
        QCOMPARE(errorOf(job, _slow), _slow + ": reading the file took longer than 1 seconds");
    }

    void an_importer_that_fails_costs_one_message_and_no_more()
    {
        ModelImportJob job;
        job.setProgram(QStringLiteral("/nowhere/importer"));
        QCOMPARE(errorOf(job, _small), _small + ": the importer /nowhere/importer is missing");
        job.setProgram(QStringLiteral("/bin/false"));
        QCOMPARE(errorOf(job, _small), _small + ": reading the file crashed the importer");
        job.setProgram({});
        QCOMPARE(errorOf(job, _small), QString());
    }

    void events_go_on_while_a_file_is_read()
    {
        ModelImportJob job;
        bool isFinished = false;
        connect(&job, &ModelImportJob::finished, [&] { isFinished = true; });
        QElapsedTimer sinceLast;
        qint64 longest = 0;
        QTimer ticks;
        connect(&ticks, &QTimer::timeout,
                [&] { longest = std::max(longest, sinceLast.restart()); });
        QVERIFY(job.start(_large));
        sinceLast.start();
        ticks.start(5);
        QTRY_VERIFY_WITH_TIMEOUT(isFinished, 60000);
        QVERIFY2(longest < 500, qPrintable(QString::number(longest)));
    }
};

QTEST_GUILESS_MAIN(tst_model_import_job)
#include "tst_model_import_job.moc"
