// SPDX-License-Identifier: MIT
#include "FilesTesting.h"
#include "workbench/files/ModelReload.h"
#include "workbench/files/ModelWatch.h"

#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelData.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_KeyNodeFinders.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/commands/SetExposures.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

class tst_model_reload : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osg::osgInit(0, nullptr); }
    void init();
    void cleanup();
    void the_new_model_takes_every_place_of_the_old_one();
    void ids_settings_and_selections_stay();
    void a_reload_is_neither_an_undo_step_nor_something_to_save();
    void undo_and_redo_show_what_the_file_holds_now();
    void a_file_that_fails_leaves_everything_as_it_was();
    void a_missing_model_comes_back();
    void an_element_is_reloaded_with_all_its_files();
    void a_file_that_is_written_anew_is_reloaded();
    void a_file_that_is_replaced_by_renaming_is_reloaded_each_time();
    void a_half_written_file_keeps_the_model_and_is_told_once();
    void a_file_that_is_gone_for_a_moment_is_reloaded();
    void a_watch_that_is_off_reloads_nothing();
    void only_files_of_the_scene_are_watched();

private:
    MO_ElementModule* arm() const { return _stage->element(0); }
    bool shows(const QString& name, double frame = 1) const;
    int idOf(const QString& name) const;
    void reload();
    void replaceByRenaming(const QByteArrayList& subnodes) const;

    std::unique_ptr<DocumentStage> _stage;
    std::unique_ptr<ModelReload> _reload;
    QString _file;
};

void tst_model_reload::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    _stage = std::make_unique<DocumentStage>();
    _reload = std::make_unique<ModelReload>(_stage->document);
    _file = _stage->writeModel("arm.obj", {"Arm", "Hand"});
    QVERIFY(_stage->load(_file));
    QVERIFY(shows("Hand"));
}

void tst_model_reload::cleanup()
{
    _reload.reset();
    _stage.reset();
}

bool tst_model_reload::shows(const QString& name, double frame) const
{
    const CEL_SharedPtr<TD_CelVq3d> model = arm()->modelAt(frame);
    return model && TD_FindKeyNode()(model->rootNodePtr(), AT_ModelNodeKey(name)) != osg::NullFC;
}

int tst_model_reload::idOf(const QString& name) const
{
    int id = -1;
    arm()->getSelIdForNodeKey(AT_ModelNodeKey(name), id);
    return id;
}

void tst_model_reload::reload()
{
    QSignalSpy finished(_reload.get(), &ModelReload::finished);
    _reload->reload(QStringList(_file));
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
}

void tst_model_reload::replaceByRenaming(const QByteArrayList& subnodes) const
{
    const QString beside = _stage->writeModel("arm.obj.new", subnodes);
    QVERIFY(::rename(QFile::encodeName(beside).constData(), QFile::encodeName(_file).constData()) ==
            0);
}

void tst_model_reload::the_new_model_takes_every_place_of_the_old_one()
{
    arm()->exposeModel(10, 19, nullptr);
    QVERIFY(_stage->load(_stage->writeModel("other.obj", {"Other"})));
    const CEL_SharedPtr<TD_CelVq3d> other = _stage->element(1)->modelAt(1);
    _stage->element(1)->exposeModel(5, 6, arm()->modelAt(1));
    _stage->writeModel("arm.obj", {"Arm", "Claw"});
    reload();
    QVERIFY(shows("Claw") && !shows("Hand"));
    QVERIFY(shows("Claw", 20) && !arm()->modelAt(15));
    const std::vector<MO_ElementModule::Exposure> shown = arm()->exposures();
    QCOMPARE(shown.size(), std::size_t(2));
    QCOMPARE(shown[0].lastFrame, 9);
    QCOMPARE(shown[1].firstFrame, 20);
    QCOMPARE(_stage->element(1)->modelAt(5), arm()->modelAt(1));
    QCOMPARE(_stage->element(1)->modelAt(1), other);
}

void tst_model_reload::ids_settings_and_selections_stay()
{
    auto settings = std::make_unique<AT_ModelData>();
    settings->setNodeData(AT_ModelNodeKey("Hand"), {false, true, {}, false});
    arm()->setSeqMeta(1, std::move(settings));
    const int hand = idOf("Hand");
    const int upper = idOf("Arm");
    SL_Selection* selection = _stage->session.context().selection();
    {
        const SL_Selection::BatchSelectionModeScope scope(selection);
        arm()->selInterface()->subSelect(hand, false);
        arm()->selInterface()->subSelect(upper, true);
    }
    // A view that finds everything deselected that it shows no more.
    connect(_stage->session.context().changeManager(), &TUSceneChangeManager::nodesChanged, this,
            [this] { arm()->selInterface()->clearSubSelection(); });
    _stage->writeModel("arm.obj", {"Finger", "Hand", "Arm"});
    reload();
    QVERIFY(shows("Finger"));
    QCOMPARE(idOf("Hand"), hand);
    QCOMPARE(idOf("Arm"), upper);
    QVERIFY(!arm()->seqMeta(1)->nodeData(AT_ModelNodeKey("Hand"))->visible);
    QCOMPARE(selection->firstNode(), arm());
    QCOMPARE(arm()->selInterface()->subSelectedIds(), (std::vector<int>{hand, upper}));
}

void tst_model_reload::a_reload_is_neither_an_undo_step_nor_something_to_save()
{
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    _stage->writeModel("arm.obj", {"Claw"});
    QSignalSpy about(_reload.get(), &ModelReload::aboutToExchange);
    reload();
    QVERIFY(shows("Claw"));
    QCOMPARE(about.count(), 1);
    QVERIFY(!_stage->document.isModified());
    QCOMPARE(_stage->session.context().commandManager()->history()->count(), 0);
    QVERIFY(_stage->document.save(nullptr));
    QVERIFY(contentOf(_stage->path("a.subnodes")).contains("\"arm.obj\""));
}

void tst_model_reload::undo_and_redo_show_what_the_file_holds_now()
{
    auto trimmed = arm()->exposures();
    trimmed.front().lastFrame = 10;
    CO_CommandManager& commands = *_stage->session.context().commandManager();
    QVERIFY(commands.execute(new SetExposures(arm(), trimmed), QStringLiteral("Trim")));
    _stage->writeModel("arm.obj", {"Claw"});
    reload();
    QVERIFY(shows("Claw"));
    commands.history()->undo();
    QVERIFY(shows("Claw", 20));
    QVERIFY(!shows("Hand"));
    commands.history()->redo();
    QVERIFY(shows("Claw"));
    QVERIFY(!arm()->modelAt(20));
}

void tst_model_reload::a_file_that_fails_leaves_everything_as_it_was()
{
    const QString before = _stage->dump();
    _stage->write("arm.obj", "no model");
    QSignalSpy failed(_reload.get(), &ModelReload::failed);
    reload();
    QCOMPARE(_stage->dump(), before);
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed.first().at(1).toString().contains("arm.obj"));
    // One who asks for it is told each time.
    reload();
    QCOMPARE(failed.count(), 2);
}

void tst_model_reload::a_missing_model_comes_back()
{
    const QString scene = _stage->path("a.subnodes");
    QVERIFY(_stage->document.saveAs(scene, nullptr));
    QVERIFY(QFile::remove(_file));
    QVERIFY(_stage->open(scene));
    QVERIFY(!shows("Hand"));
    _stage->writeModel("arm.obj", {"Arm", "Hand"});
    reload();
    QVERIFY(shows("Hand"));
}

void tst_model_reload::an_element_is_reloaded_with_all_its_files()
{
    const QString other = _stage->writeModel("other.obj", {"Other"});
    QVERIFY(_stage->load(other));
    arm()->exposeModel(5, 6, _stage->element(1)->modelAt(1));
    QCOMPARE(_reload->filesOf(arm()), (QStringList{_file, other}));
    QCOMPARE(_reload->filesOfScene(), (QStringList{_file, other}));
    QVERIFY(_reload->filesOf(nullptr).isEmpty());
    QSignalSpy finished(_reload.get(), &ModelReload::finished);
    _reload->reload(arm());
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QCOMPARE(finished.first().first().toStringList(), (QStringList{_file, other}));
}

void tst_model_reload::a_file_that_is_written_anew_is_reloaded()
{
    const ModelWatch watch(_stage->session, *_reload);
    QCOMPARE(watch.files(), QStringList(_file));
    _stage->writeModel("arm.obj", {"Arm", "Claw"});
    QTRY_VERIFY_WITH_TIMEOUT(shows("Claw"), 30000);
}

void tst_model_reload::a_file_that_is_replaced_by_renaming_is_reloaded_each_time()
{
    const ModelWatch watch(_stage->session, *_reload);
    for (const char* name : {"Claw", "Hook", "Tool"}) {
        replaceByRenaming({name});
        QTRY_VERIFY_WITH_TIMEOUT(shows(QString::fromLatin1(name)), 30000);
    }
}

void tst_model_reload::a_half_written_file_keeps_the_model_and_is_told_once()
{
    ModelWatch watch(_stage->session, *_reload);
    watch.setPatience(20);
    QSignalSpy failed(_reload.get(), &ModelReload::failed);
    QSignalSpy finished(_reload.get(), &ModelReload::finished);
    _stage->write("arm.obj", "half");
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    _stage->write("arm.obj", "half of it");
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 2, 30000);
    QVERIFY(shows("Hand"));
    QCOMPARE(failed.count(), 1);
    _stage->writeModel("arm.obj", {"Claw"});
    QTRY_VERIFY_WITH_TIMEOUT(shows("Claw"), 30000);
    QCOMPARE(failed.count(), 1);
}

void tst_model_reload::a_file_that_is_gone_for_a_moment_is_reloaded()
{
    ModelWatch watch(_stage->session, *_reload);
    watch.setPatience(20);
    QSignalSpy failed(_reload.get(), &ModelReload::failed);
    QFileSystemWatcher observer({QFileInfo(_file).absolutePath()});
    const QSignalSpy noticed(&observer, &QFileSystemWatcher::directoryChanged);
    QVERIFY(QFile::remove(_file));
    // What one watcher has heard of, the other hears of in the same round of events.
    QTRY_VERIFY(!noticed.isEmpty());
    QCoreApplication::processEvents();
    _stage->writeModel("arm.obj", {"Claw"});
    QTRY_VERIFY_WITH_TIMEOUT(shows("Claw"), 30000);
    QCOMPARE(failed.count(), 0);
}

void tst_model_reload::a_watch_that_is_off_reloads_nothing()
{
    ModelWatch watch(_stage->session, *_reload);
    watch.setPatience(0);
    watch.setEnabled(false);
    QVERIFY(watch.files().isEmpty());
    QFileSystemWatcher observer({_file});
    const QSignalSpy noticed(&observer, &QFileSystemWatcher::fileChanged);
    const QSignalSpy started(&_stage->loader, &ModelLoader::started);
    _stage->writeModel("arm.obj", {"Claw"});
    QTRY_VERIFY(!noticed.isEmpty());
    // Once for the notice, once for the patience of none.
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(started.count(), 0);
    watch.setEnabled(true);
    QCOMPARE(watch.files(), QStringList(_file));
}

void tst_model_reload::only_files_of_the_scene_are_watched()
{
    const ModelWatch watch(_stage->session, *_reload);
    const QString other = _stage->writeModel("other.obj", {"Other"});
    QVERIFY(_stage->load(other));
    QTRY_COMPARE(watch.files().size(), 2);
    _stage->document.newScene();
    QTRY_VERIFY(watch.files().isEmpty());
}

QTEST_MAIN(tst_model_reload)
#include "tst_model_reload.moc"
