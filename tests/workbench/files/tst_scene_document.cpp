// SPDX-License-Identifier: MIT
#include "FilesTesting.h"

#include "host/commands/CO_CommandManager.h"
#include "host/commands/tu_node.h"
#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_PegModule.h"
#include "host/selection/SL_Selection.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

using Consent = SceneDocument::Consent;

class tst_scene_document : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osg::osgInit(0, nullptr); }
    void init();
    void cleanup() { _stage.reset(); }
    void a_new_scene_has_no_file_and_nothing_to_save();
    void saving_names_the_document_and_leaves_nothing_to_save();
    void a_scene_without_a_file_cannot_be_saved_without_a_name();
    void a_file_that_cannot_be_opened_leaves_everything_as_it_was_data();
    void a_file_that_cannot_be_opened_leaves_everything_as_it_was();
    void cancelling_leaves_everything_as_it_was();
    void a_new_scene_ends_an_opening();
    void only_one_file_is_opened_at_a_time();
    void a_file_with_problems_is_not_overwritten_without_consent();
    void a_file_that_changed_on_disk_is_not_overwritten_without_consent();
    void saving_under_another_name_needs_no_consent();
    void missing_models_lose_nothing_when_saved_again();
    void a_scene_that_others_open_has_no_file();
    void a_scene_that_was_never_saved_can_be_taken_up();

private:
    void addPegByCommand();
    QUndoStack& history() { return *_stage->session.context().commandManager()->history(); }

    std::unique_ptr<DocumentStage> _stage;
};

void tst_scene_document::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    _stage = std::make_unique<DocumentStage>();
}

void tst_scene_document::addPegByCommand()
{
    _stage->session.context().commandManager()->execute(
        new tu_node::AddSubNodeCmd(&_stage->root(), new MO_PegModule(QStringLiteral("peg"))),
        QStringLiteral("Add"));
}

void tst_scene_document::a_new_scene_has_no_file_and_nothing_to_save()
{
    QCOMPARE(_stage->document.path(), QString());
    QVERIFY(!_stage->document.title().isEmpty());
    _stage->addPeg("peg");
    QVERIFY(_stage->document.isModified());
    _stage->document.newScene();
    QVERIFY(!_stage->document.isModified());
    QVERIFY(_stage->root().nodes().empty());
}

void tst_scene_document::saving_names_the_document_and_leaves_nothing_to_save()
{
    QSignalSpy paths(&_stage->document, &SceneDocument::pathChanged);
    addPegByCommand();
    const QString file = _stage->path("a.subnodes");
    QVERIFY(_stage->document.saveAs(file, nullptr));
    QCOMPARE(_stage->document.path(), file);
    QCOMPARE(_stage->document.title(), QStringLiteral("a.subnodes"));
    QCOMPARE(paths.count(), 1);
    QVERIFY(!_stage->document.isModified());
    history().undo();
    QVERIFY(_stage->document.isModified());
    QVERIFY(_stage->document.save(nullptr));
    QVERIFY(_stage->open(file));
    QVERIFY(_stage->root().nodes().empty());
    QVERIFY(!_stage->document.isModified());
}

void tst_scene_document::a_scene_without_a_file_cannot_be_saved_without_a_name()
{
    QString error;
    QVERIFY(!_stage->document.save(&error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!_stage->document.saveAs(_stage->path("no/folder/a.subnodes"), &error));
    QVERIFY(error.startsWith("a.subnodes"));
    QCOMPARE(_stage->document.path(), QString());
}

void tst_scene_document::a_file_that_cannot_be_opened_leaves_everything_as_it_was_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << QStringLiteral("missing.subnodes");
    QTest::newRow("folder") << QStringLiteral(".");
    QTest::newRow("no scene") << QStringLiteral("text.subnodes");
}

void tst_scene_document::a_file_that_cannot_be_opened_leaves_everything_as_it_was()
{
    QFETCH(const QString, name);
    _stage->write("text.subnodes", "text");
    _stage->addPeg("peg");
    const QString file = _stage->path("a.subnodes");
    QVERIFY(_stage->document.saveAs(file, nullptr));
    addPegByCommand();
    const QString before = _stage->dump();
    QString message;
    QVERIFY(!_stage->open(_stage->path(name), &message));
    QVERIFY(!message.isEmpty() && !message.contains('\n'));
    QCOMPARE(_stage->dump(), before);
    QCOMPARE(_stage->document.path(), file);
    QVERIFY(_stage->document.isModified());
}

void tst_scene_document::cancelling_leaves_everything_as_it_was()
{
    QVERIFY(_stage->load(_stage->writeModel("arm.obj", {"Arm", "Hand"})));
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    _stage->document.newScene();
    _stage->addPeg("peg");
    const QString before = _stage->dump();
    connect(&_stage->loader, &ModelLoader::started, &_stage->loader, &ModelLoader::cancel);
    QString message;
    QVERIFY(!_stage->open(_stage->path("a.subnodes"), &message));
    QVERIFY(message.contains("a.subnodes"));
    QCOMPARE(_stage->dump(), before);
    QCOMPARE(_stage->document.path(), QString());
    QVERIFY(!_stage->document.isOpening());
}

void tst_scene_document::a_new_scene_ends_an_opening()
{
    QVERIFY(_stage->load(_stage->writeModel("arm.obj", {"Arm", "Hand"})));
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    QSignalSpy finished(&_stage->document, &SceneDocument::openFinished);
    QSignalSpy read(&_stage->loader, &ModelLoader::finished);
    QVERIFY(_stage->document.open(_stage->path("a.subnodes")));
    _stage->document.newScene();
    QTRY_COMPARE_WITH_TIMEOUT(read.count(), 1, 30000);
    QCOMPARE(finished.count(), 1);
    QVERIFY(!finished.first().first().toBool());
    QVERIFY(_stage->root().nodes().empty());
}

void tst_scene_document::only_one_file_is_opened_at_a_time()
{
    QVERIFY(_stage->load(_stage->writeModel("arm.obj", {"Arm", "Hand"})));
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    QSignalSpy finished(&_stage->document, &SceneDocument::openFinished);
    QVERIFY(_stage->document.open(_stage->path("a.subnodes")));
    QVERIFY(_stage->document.isOpening());
    QVERIFY(!_stage->document.open(_stage->path("a.subnodes")));
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QVERIFY(finished.first().first().toBool());
}

void tst_scene_document::a_file_with_problems_is_not_overwritten_without_consent()
{
    const QByteArray content = R"({"format": "subnode-scene", "version": 9, "name": "later"})";
    const QString file = _stage->write("later.subnodes", content);
    QString message;
    QVERIFY(_stage->open(file, &message));
    QVERIFY(message.contains("later version"));
    QVERIFY(_stage->document.needsOtherName());
    QVERIFY(!_stage->document.save(&message));
    QVERIFY(message.startsWith("later.subnodes"));
    QVERIFY(!_stage->document.saveAs(file, nullptr));
    // By whatever name.
    const QString link = _stage->path("link.subnodes");
    QVERIFY(QFile::link(file, link));
    QVERIFY(!_stage->document.saveAs(link, nullptr));
    QCOMPARE(contentOf(file), content);
    QVERIFY(_stage->document.save(nullptr, Consent::Given));
    QVERIFY(contentOf(file) != content);
    QVERIFY(!_stage->document.needsOtherName());
}

void tst_scene_document::a_file_that_changed_on_disk_is_not_overwritten_without_consent()
{
    const QString file = _stage->path("a.subnodes");
    QVERIFY(_stage->document.saveAs(file, nullptr));
    QVERIFY(!_stage->document.isChangedOnDisk());
    _stage->write("a.subnodes", "theirs");
    QVERIFY(_stage->document.isChangedOnDisk());
    QString error;
    QVERIFY(!_stage->document.save(&error));
    QVERIFY(error.startsWith("a.subnodes"));
    QCOMPARE(contentOf(file), QByteArray("theirs"));
    QVERIFY(_stage->document.save(nullptr, Consent::Given));
    QVERIFY(!_stage->document.isChangedOnDisk());
    QVERIFY(QFile::remove(file));
    QVERIFY(_stage->document.save(nullptr));
}

void tst_scene_document::saving_under_another_name_needs_no_consent()
{
    const QString file =
        _stage->write("later.subnodes", R"({"format": "subnode-scene", "version": 9})");
    QVERIFY(_stage->open(file));
    QVERIFY(_stage->document.saveAs(_stage->path("mine.subnodes"), nullptr));
    QVERIFY(!_stage->document.needsOtherName());
    QVERIFY(_stage->document.save(nullptr));
}

void tst_scene_document::missing_models_lose_nothing_when_saved_again()
{
    const QString model = _stage->writeModel("arm.obj", {"Arm", "Hand"});
    QVERIFY(_stage->load(model));
    _stage->element(0)->exposeModel(5, 9, nullptr);
    auto settings = std::make_unique<AT_ModelData>();
    settings->setNodeData(AT_ModelNodeKey("Arm"), {false, true, {}, false});
    _stage->element(0)->setSeqMeta(3, std::move(settings));
    _stage->session.context().selection()->clear();
    _stage->notify();
    const QString file = _stage->path("a.subnodes");
    QVERIFY(_stage->document.saveAs(file, nullptr));
    const QString before = _stage->dump();
    const QByteArray content = contentOf(file);

    QVERIFY(QFile::rename(model, model + ".away"));
    QString message;
    QVERIFY(_stage->open(file, &message));
    QCOMPARE(message, QStringLiteral("a.subnodes: 1 model is missing: arm.obj"));
    QVERIFY(_stage->element(0)->modelAt(1)->rootNodePtr() == osg::NullFC);
    QVERIFY(_stage->document.needsOtherName());
    QVERIFY(_stage->document.save(nullptr, Consent::Given));
    QCOMPARE(contentOf(file), content);

    QVERIFY(QFile::rename(model + ".away", model));
    QVERIFY(_stage->open(file, &message));
    QCOMPARE(message, QString());
    QCOMPARE(_stage->dump(), before);
}

void tst_scene_document::a_scene_that_others_open_has_no_file()
{
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    _stage->session.openScene("other");
    QCOMPARE(_stage->document.path(), QString());
    QVERIFY(!_stage->document.isModified());
}

void tst_scene_document::a_scene_that_was_never_saved_can_be_taken_up()
{
    const QString file = _stage->path("a.subnodes");
    QVERIFY(_stage->document.saveAs(file, nullptr));
    _stage->addPeg("new");
    const SceneDocument::Unsaved unsaved = _stage->document.unsaved();
    _stage->document.newScene();
    QSignalSpy finished(&_stage->document, &SceneDocument::openFinished);
    QVERIFY(_stage->document.takeUp(unsaved));
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(_stage->root().nodes().front()->instanceName(), QStringLiteral("new"));
    QCOMPARE(_stage->document.path(), file);
    QVERIFY(_stage->document.isModified());
    QVERIFY(!_stage->document.isChangedOnDisk());
    _stage->write("a.subnodes", "theirs");
    QVERIFY(_stage->document.isChangedOnDisk());
}

QTEST_MAIN(tst_scene_document)
#include "tst_scene_document.moc"
