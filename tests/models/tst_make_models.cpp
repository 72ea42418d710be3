// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class tst_make_models : public QObject
{
    Q_OBJECT

private:
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static int run(const QStringList& arguments)
    {
        return QProcess::execute(MAKE_SAMPLE_MODELS, arguments);
    }

private slots:
    void the_committed_files_are_what_the_generator_writes()
    {
        const QTemporaryDir folder;
        QCOMPARE(run({folder.path()}), 0);
        const QStringList written = QDir(folder.path()).entryList(QDir::Files, QDir::Name);
        QCOMPARE(written, QStringList({"crane.gltf", "robot.gltf"}));
        for (const QString& name : written) {
            const QByteArray committed = content(SAMPLE_MODELS "/" + name);
            QVERIFY2(content(folder.filePath(name)) == committed,
                     qPrintable(name + " differs: run make-sample-models and commit its files"));
        }
    }

    void a_folder_that_is_missing_is_an_error()
    {
        const QTemporaryDir folder;
        QCOMPARE(run({folder.filePath("absent")}), 1);
        QCOMPARE(run({}), 2);
    }
};

QTEST_GUILESS_MAIN(tst_make_models)
#include "tst_make_models.moc"
