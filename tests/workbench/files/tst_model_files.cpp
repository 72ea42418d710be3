// SPDX-License-Identifier: MIT
#include "FilesTesting.h"

#include "host/models/TD_CelVq3d.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QSignalSpy>
#include <QTest>

class tst_model_files : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osg::osgInit(0, nullptr); }
    void init();
    void cleanup() { _stage.reset(); }
    void a_library_knows_models_as_long_as_they_live();
    void a_stand_in_is_known_under_both_its_paths();
    void files_are_read_in_order_without_making_elements();
    void files_that_fail_are_told_to_the_one_who_asked();
    void reading_nothing_is_done_at_once();
    void cancelling_answers_everyone_who_waits();
    void cancelling_as_a_file_starts_leaves_it_unread();
    void one_who_was_answered_may_ask_again();

private:
    std::unique_ptr<DocumentStage> _stage;
};

void tst_model_files::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    _stage = std::make_unique<DocumentStage>();
}

void tst_model_files::a_library_knows_models_as_long_as_they_live()
{
    ModelLibrary library;
    auto model = std::make_shared<TD_CelVq3d>(osg::NullFC);
    QVERIFY(library.originOf(model).path.isEmpty());
    library.note(model, "/models/../models/a.obj");
    library.note(nullptr, "/models/b.obj");
    QCOMPARE(library.originOf(model).path, QStringLiteral("/models/a.obj"));
    QVERIFY(library.isFrom(model, "/models/a.obj"));
    QVERIFY(!library.isFrom(model, "/models/b.obj"));
    QVERIFY(!library.isFrom(model, QString()));
    QVERIFY(!library.isPlaceholder(model));
    QVERIFY(library.originOf(nullptr).path.isEmpty());
    const std::weak_ptr<TD_CelVq3d> watched = model;
    model.reset();
    QVERIFY(watched.expired());
}

void tst_model_files::a_stand_in_is_known_under_both_its_paths()
{
    ModelLibrary library;
    const ModelLibrary::Model model = library.placeholder({"/a/x.obj", "/b/x.obj"});
    QVERIFY(model->rootNodePtr() == osg::NullFC);
    QVERIFY(library.isPlaceholder(model));
    QVERIFY(library.isFrom(model, "/a/x.obj"));
    QVERIFY(library.isFrom(model, "/b/x.obj"));
}

void tst_model_files::files_are_read_in_order_without_making_elements()
{
    const QString arm = _stage->writeModel("arm.obj", {"Arm"});
    const QString leg = _stage->writeModel("leg.obj", {"Leg"});
    QSignalSpy started(&_stage->loader, &ModelLoader::started);
    QSignalSpy finished(&_stage->loader, &ModelLoader::finished);
    ModelLoader::Reading done;
    _stage->loader.read({leg, arm}, [&](const ModelLoader::Reading& reading) { done = reading; });
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QCOMPARE(started.at(0).first().toString(), leg);
    QCOMPARE(started.at(1).first().toString(), arm);
    QCOMPARE(done.models.size(), std::size_t(2));
    QVERIFY(!done.cancelled);
    QCOMPARE(_stage->loader.library().originOf(done.models.at(arm)).path, arm);
    QVERIFY(_stage->root().nodes().empty());
}

void tst_model_files::files_that_fail_are_told_to_the_one_who_asked()
{
    const QString arm = _stage->writeModel("arm.obj", {"Arm"});
    const QString gone = _stage->path("gone.obj");
    QSignalSpy failed(&_stage->loader, &ModelLoader::failed);
    QSignalSpy finished(&_stage->loader, &ModelLoader::finished);
    ModelLoader::Reading done;
    _stage->loader.read({gone, arm}, [&](const ModelLoader::Reading& reading) { done = reading; });
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QVERIFY(done.errors.at(gone).contains("gone.obj"));
    QCOMPARE(done.models.size(), std::size_t(1));
    QCOMPARE(failed.count(), 0);
}

void tst_model_files::reading_nothing_is_done_at_once()
{
    int answers = 0;
    _stage->loader.read({}, [&](const ModelLoader::Reading&) { ++answers; });
    QCOMPARE(answers, 1);
    QVERIFY(!_stage->loader.isBusy());
}

void tst_model_files::cancelling_answers_everyone_who_waits()
{
    const QString arm = _stage->writeModel("arm.obj", {"Arm"});
    int cancelled = 0;
    const auto count = [&](const ModelLoader::Reading& reading) {
        cancelled += reading.cancelled ? 1 : 0;
    };
    QSignalSpy finished(&_stage->loader, &ModelLoader::finished);
    _stage->loader.read({arm, arm}, count);
    _stage->loader.load({arm});
    _stage->loader.read({arm}, count);
    _stage->loader.cancel();
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QCOMPARE(cancelled, 2);
    QVERIFY(_stage->root().nodes().empty());
}

void tst_model_files::cancelling_as_a_file_starts_leaves_it_unread()
{
    connect(&_stage->loader, &ModelLoader::started, &_stage->loader, &ModelLoader::cancel);
    QSignalSpy finished(&_stage->loader, &ModelLoader::finished);
    bool isCancelled = false;
    _stage->loader.read({_stage->writeModel("arm.obj", {"Arm"})},
                        [&](const ModelLoader::Reading& reading) {
                            isCancelled = reading.cancelled && reading.models.empty();
                        });
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QVERIFY(isCancelled);
    QVERIFY(!_stage->loader.isBusy());
}

void tst_model_files::one_who_was_answered_may_ask_again()
{
    const QString arm = _stage->writeModel("arm.obj", {"Arm"});
    QSignalSpy finished(&_stage->loader, &ModelLoader::finished);
    int answers = 0;
    _stage->loader.read({arm}, [&](const ModelLoader::Reading&) {
        ++answers;
        _stage->loader.read({arm}, [&](const ModelLoader::Reading&) { ++answers; });
    });
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 30000);
    QCOMPARE(answers, 2);
}

QTEST_MAIN(tst_model_files)
#include "tst_model_files.moc"
