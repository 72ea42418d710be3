// SPDX-License-Identifier: MIT
#include "ImportTesting.h"
#include "workbench/import/ImportFileSystem.h"

#include <QTest>
#include <sys/stat.h>

class tst_import_file_system : public QObject
{
    Q_OBJECT

private:
    ImportFolder _folder;
    ImportFileSystem _files;

    bool opens(const QString& name, const char* mode)
    {
        Assimp::IOStream* const stream =
            _files.Open(_folder.path(name).toLocal8Bit().constData(), mode);
        if (stream)
            _files.Close(stream);
        return stream != nullptr;
    }

private slots:
    void regular_files_can_be_read()
    {
        _folder.write("model.obj", "v 0 0 0\n");
        QVERIFY(opens("model.obj", "rb"));
        QVERIFY(opens("model.obj", "rt"));
    }

    void nothing_can_be_written()
    {
        const QString path = _folder.write("kept.obj", "v 0 0 0\n");
        for (const char* mode : {"wb", "w", "ab", "r+"})
            QVERIFY(!opens("kept.obj", mode));
        QVERIFY(!opens("new.obj", "wb"));
        QCOMPARE(QFile(path).size(), 8);
    }

    void folders_devices_and_pipes_do_not_exist()
    {
        QCOMPARE(mkfifo(_folder.path("pipe").toLocal8Bit().constData(), 0600), 0);
        QVERIFY(!opens("pipe", "rb"));
        QVERIFY(!opens(".", "rb"));
        QVERIFY(!_files.Exists("/dev/zero"));
        QVERIFY(!opens("absent", "rb"));
    }
};

QTEST_APPLESS_MAIN(tst_import_file_system)
#include "tst_import_file_system.moc"
