// SPDX-License-Identifier: MIT
#include "ImportTesting.h"
#include "SceneOutline.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QSet>
#include <QTest>
#include <QThread>
#include <algorithm>

class tst_model_importer : public QObject
{
    Q_OBJECT

private:
    ImportFolder _folder;
    const QByteArray _content = gltf({R"({"name":"Top","children":[1]})", R"({"name":"Arm"})"});

private slots:
    void initTestCase()
    {
        // Before the library has been started there is no scene graph to import into.
        const ImportResult early = _folder.import("early.gltf", _content);
        QCOMPARE(early.error,
                 _folder.path("early.gltf") + ": the scene graph has not been started");
        QVERIFY(osg::osgInit(0, nullptr));
    }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void progress_rises_to_one()
    {
        RecordingProgress progress;
        const ImportResult result =
            ModelImporter::importModel(_folder.write("model.gltf", _content), &progress);
        QVERIFY(result.succeeded());
        QVERIFY(!progress.fractions.isEmpty());
        QVERIFY(std::is_sorted(progress.fractions.begin(), progress.fractions.end()));
        QCOMPARE(progress.fractions.last(), 1.0);
        QVERIFY(progress.fractions.first() >= 0.0);
    }

    void an_import_can_be_cancelled_data()
    {
        QTest::addColumn<double>("at");
        QTest::newRow("while reading") << 0.1;
        QTest::newRow("after reading") << 0.75;
        QTest::newRow("while converting") << 0.85;
    }
    void an_import_can_be_cancelled()
    {
        QFETCH(const double, at);
        QByteArray text = "xof 0303txt 0032\nFrame Top {\n";
        for (int i = 0; i < 2000; ++i)
            text += "Frame Arm { }\n";
        const QString path = _folder.write("model.x", text + "}\n");
        RecordingProgress progress;
        progress.cancelAt = at;
        const ImportResult result = ModelImporter::importModel(path, &progress);
        QVERIFY(result.cancelled);
        QCOMPARE(result.error, path + ": the import was cancelled");
        QVERIFY(result.root == osg::NullFC);
        QVERIFY(progress.fractions.last() < 1.0);
    }

    void an_import_that_is_cancelled_before_it_begins_reads_nothing()
    {
        RecordingProgress progress;
        progress.fractions = {0.0};
        progress.cancelAt = 0.0;
        QVERIFY(ModelImporter::importModel("absent.gltf", &progress).cancelled);
    }

    void any_thread_may_import()
    {
        const QString path = _folder.write("thread.gltf", _content);
        ImportResult result;
        const std::unique_ptr<QThread> thread(
            QThread::create([&] { result = ModelImporter::importModel(path); }));
        thread->start();
        thread->wait();
        QVERIFY(result.succeeded());
        QCOMPARE(SceneOutline::lines(result.root), QByteArrayList({"group Top", ".group Arm"}));
    }

    void the_result_owns_the_root()
    {
        ImportResult result = _folder.import("owned.gltf", _content);
        const osg::NodeRefPtr child(result.root->getChild(0));
        QVERIFY(child->getParent() == result.root);
        result = ImportResult();
        QVERIFY(child->getParent() == osg::NullFC);
    }

    void a_path_with_letters_of_all_scripts_is_read()
    {
        QVERIFY(_folder.import(QStringLiteral("腕 ä.gltf"), _content).succeeded());
    }

    void formats_are_sorted_and_described()
    {
        const QList<ModelFormat> formats = ModelImporter::supportedFormats();
        QSet<QString> extensions;
        for (qsizetype i = 0; i < formats.size(); ++i) {
            QVERIFY(i == 0 || formats[i - 1].extension < formats[i].extension);
            QVERIFY(!formats[i].description.isEmpty());
            QVERIFY(!formats[i].extension.startsWith('.') && !formats[i].extension.contains(' '));
            extensions.insert(formats[i].extension);
        }
        for (const char* expected : {"gltf", "glb", "fbx", "dae", "obj", "3ds"})
            QVERIFY2(extensions.contains(expected), expected);
    }
};

QTEST_APPLESS_MAIN(tst_model_importer)
#include "tst_model_importer.moc"
