// SPDX-License-Identifier: MIT
#include "FilesTesting.h"
#include "workbench/scenefile/SceneFileWriter.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QTest>
#include <csignal>
#include <sys/resource.h>

class tst_interrupted_save : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }
    void the_old_file_stays_wherever_writing_ends();
};

namespace {

/// No file can grow beyond the size while this lives, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(qsizetype size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &_before);
        const rlimit limited{static_cast<rlim_t>(size), _before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &_before); }

private:
    rlimit _before = {};
};

} // namespace

void tst_interrupted_save::the_old_file_stays_wherever_writing_ends()
{
    osg::osgInit(0, nullptr);
    DocumentStage stage;
    for (int i = 0; i < 400; ++i)
        stage.root().insertNode(std::make_unique<MO_GroupModule>(QString::number(i)));
    stage.notify();
    const QString file = stage.path("a.subnodes");
    const QByteArray size = SceneFileWriter(stage.session, stage.loader.library()).bytes({});
    QVERIFY(size.size() > 20000);
    stage.write("a.subnodes", "old");
    for (qsizetype limit = 0; limit < size.size(); limit += limit < 64 ? 1 : 509) {
        QString error;
        bool done = true;
        {
            const FullDisk disk(limit);
            done = stage.document.saveAs(file, &error);
        }
        QVERIFY(!done);
        QVERIFY(error.startsWith("a.subnodes"));
        QCOMPARE(contentOf(file), QByteArray("old"));
        QCOMPARE(QDir(stage.folder.path()).entryList(QDir::Files | QDir::Hidden),
                 QStringList("a.subnodes"));
        QVERIFY(stage.document.isModified());
    }
    QVERIFY(stage.document.saveAs(file, nullptr));
    QVERIFY(contentOf(file).size() > 20000);
}

QTEST_MAIN(tst_interrupted_save)
#include "tst_interrupted_save.moc"
