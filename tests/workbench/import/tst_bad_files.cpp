// SPDX-License-Identifier: MIT
#include "ImportTesting.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QDir>
#include <QTest>
#include <sys/stat.h>
#include <unistd.h>

class tst_bad_files : public QObject
{
    Q_OBJECT

private:
    ImportFolder _folder;

    /// The reason in the message, which must be a single line that begins with the path.
    static QString reason(const QString& path)
    {
        const ImportResult result = ModelImporter::importModel(path);
        const QString start = path + ": ";
        if (result.succeeded() || result.root != osg::NullFC || result.cancelled)
            return "(succeeded)";
        if (!result.error.startsWith(start) || result.error.contains('\n'))
            return "(malformed) " + result.error;
        return result.error.mid(start.size());
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void a_file_that_is_missing()
    {
        QCOMPARE(reason(_folder.path("absent.gltf")), "there is no such file");
        QCOMPARE(reason("absent.gltf"), "there is no such file");
        const ImportResult nameless = ModelImporter::importModel({});
        QCOMPARE(nameless.error, "(no file name): no file was given");
    }

    void a_folder()
    {
        QVERIFY(QDir(_folder.path(".")).mkdir("folder.gltf"));
        QCOMPARE(reason(_folder.path("folder.gltf")), "this is a folder, not a file");
    }

    void a_pipe()
    {
        const QString path = _folder.path("pipe.gltf");
        QCOMPARE(mkfifo(path.toLocal8Bit().constData(), 0600), 0);
        QCOMPARE(reason(path), "this is not a regular file");
    }

    void a_file_that_may_not_be_read()
    {
        const QString path = _folder.write("locked.gltf", "{}");
        QVERIFY(QFile::setPermissions(path, {}));
        // The superuser may read everything, so it is somebody else for a moment.
        constexpr uid_t somebodyElse = 65534;
        const uid_t user = geteuid();
        const bool isSuperuser = user == 0;
        if (isSuperuser) {
            const QByteArray folder = QFileInfo(path).path().toLocal8Bit();
            QCOMPARE(chmod(folder.constData(), 0755), 0);
            QCOMPARE(setresuid(somebodyElse, somebodyElse, user), 0);
        }
        const QString found = reason(path);
        QVERIFY(!isSuperuser || setresuid(user, user, user) == 0);
        QVERIFY2(found.startsWith("the file cannot be opened: "), qPrintable(found));
    }

    void an_empty_file()
    {
        QCOMPARE(reason(_folder.write("empty.gltf", "")), "the file is empty");
        QCOMPARE(reason(_folder.write("empty.unknown", "")), "the file is empty");
    }

    void a_file_of_unknown_kind()
    {
        QCOMPARE(reason(_folder.write("notes.unknown", "Some words.\n")),
                 "the file is of an unknown kind");
        QCOMPARE(reason(_folder.write("noextension", "Some words.\n")),
                 "the file is of an unknown kind");
    }

    void a_file_without_content()
    {
        const QString empty = "the file holds no model: it has no nodes and no meshes";
        QCOMPARE(reason(_folder.write("scene.gltf",
                                      R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{}]})")),
                 empty);
    }

    void a_file_that_ends_too_soon_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("gltf") << "cut.gltf" << gltf({R"({"name":"Arm","mesh":0})"});
        QTest::newRow("collada")
            << "cut.dae"
            << QByteArray(R"(<?xml version="1.0"?><COLLADA version="1.4.1"><library_visual_scenes>)"
                          R"(<visual_scene id="s"><node id="Arm"/></visual_scene>)"
                          R"(</library_visual_scenes></COLLADA>)");
        QTest::newRow("x") << "cut.x"
                           << QByteArray("xof 0303txt 0032\nFrame Top {\n Frame Arm {\n }\n}\n");
    }
    void a_file_that_ends_too_soon()
    {
        QFETCH(const QString, name);
        QFETCH(const QByteArray, content);
        // Some cuts leave a file that still makes sense; the others must fail properly.
        int failures = 0;
        for (qsizetype size = 1; size < content.size(); size += 1 + content.size() / 50) {
            const ImportResult result = _folder.import(name, content.left(size));
            if (result.succeeded())
                continue;
            ++failures;
            QVERIFY(result.error.startsWith(_folder.path(name) + ": "));
            QVERIFY(!result.error.contains('\n'));
            QVERIFY(result.root == osg::NullFC);
        }
        QVERIFY(failures > 0);
    }

    void a_file_of_noise()
    {
        QByteArray noise;
        quint32 state = 1;
        for (int i = 0; i < 4096; ++i) {
            state = state * 1664525 + 1013904223;
            noise += static_cast<char>(state >> 24);
        }
        for (const char* name : {"noise.gltf", "noise.glb", "noise.fbx", "noise.dae", "noise.x"}) {
            const QString why = reason(_folder.write(name, noise));
            QVERIFY2(!why.startsWith('('), qPrintable(why));
        }
    }

    void a_name_with_a_line_break_still_gives_one_line()
    {
        const ImportResult result = ModelImporter::importModel("two\nlines.gltf");
        QCOMPARE(result.error, "two lines.gltf: there is no such file");
    }

    void a_companion_file_that_is_a_device_is_not_read()
    {
        QByteArray text = gltf({R"({"name":"Arm","mesh":0})"});
        const qsizetype uri = text.indexOf("data:");
        text.replace(uri, text.indexOf('"', uri) - uri, "/dev/zero");
        QVERIFY(!reason(_folder.write("device.gltf", text)).startsWith('('));
        const ImportResult result =
            _folder.import("device.obj", "mtllib /dev/zero\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
        QCOMPARE(result.error, QString());
    }
};

QTEST_APPLESS_MAIN(tst_bad_files)
#include "tst_bad_files.moc"
