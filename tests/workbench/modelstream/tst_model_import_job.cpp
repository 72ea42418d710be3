// SPDX-License-Identifier: MIT
#include "workbench/files/ModelImportJob.h"

#include "ImportTesting.h"
#include "SceneOutline.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

class tst_model_import_job : public QObject
{
    Q_OBJECT

private:
    ImportFolder _folder;
    QString _small;
    QString _large;

private slots:
    void initTestCase()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _small = _folder.write("small.gltf", gltf({R"({"name":"Arm","mesh":0})"}));
        QByteArray text = "xof 0303txt 0032\nFrame Top {\n";
        for (int i = 0; i < 20000; ++i)
            text += "Frame Arm { }\n";
        _large = _folder.write("large.x", text + "}\n");
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
        QVERIFY(job.start(_large));
        QVERIFY(!job.start(_small));
        QTRY_COMPARE(finished, 2);
    }

    void a_cancelled_import_says_so()
    {
        ModelImportJob job;
        QList<ImportResult> results;
        connect(&job, &ModelImportJob::finished,
                [&](const ImportResult& result) { results += result; });
        job.cancel();
        QVERIFY(job.start(_large));
        job.cancel();
        QTRY_COMPARE(results.size(), 1);
        QVERIFY(results[0].cancelled);
        QVERIFY(results[0].root == osg::NullFC);
    }

    void a_job_that_dies_stops_its_import()
    {
        ModelImportJob job;
        QVERIFY(job.start(_large));
    }
};

QTEST_GUILESS_MAIN(tst_model_import_job)
#include "tst_model_import_job.moc"
