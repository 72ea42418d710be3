// SPDX-License-Identifier: MIT
#include "FilesTesting.h"
#include "workbench/files/Autosave.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

class tst_autosave : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { osg::osgInit(0, nullptr); }
    void init();
    void cleanup() { _stage.reset(); }
    void the_scene_of_a_killed_process_can_be_taken_up();
    void the_scene_of_a_killed_process_can_be_discarded();
    void a_copy_goes_when_the_scene_is_saved_or_its_owner_ends();
    void a_copy_goes_when_its_changes_are_gone();
    void a_copy_is_written_while_changes_go_on();
    void two_at_work_leave_each_others_copies_alone();
    void copies_that_are_none_are_passed_over();
    void a_folder_that_cannot_be_written_is_told_once();

private:
    QString kept() const { return _stage->path("kept"); }
    QStringList copies() const;
    std::unique_ptr<QProcess> startedProgram(const QStringList& more = {});

    std::unique_ptr<DocumentStage> _stage;
};

void tst_autosave::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    _stage = std::make_unique<DocumentStage>();
}

QStringList tst_autosave::copies() const
{
    return QDir(kept()).entryList({"*.autosave"}, QDir::Files);
}

/// A program that has kept its scene and goes on.
std::unique_ptr<QProcess> tst_autosave::startedProgram(const QStringList& more)
{
    auto program = std::make_unique<QProcess>();
    const auto before = copies().size();
    program->start(QStringLiteral(AUTOSAVING_PROGRAM), QStringList(kept()) + more);
    if (!QTest::qWaitFor([&] { return copies().size() > before; }, 30000))
        return nullptr;
    return program;
}

void tst_autosave::the_scene_of_a_killed_process_can_be_taken_up()
{
    const QString file = _stage->path("a.subnodes");
    _stage->addPeg("first");
    QVERIFY(_stage->document.saveAs(file, nullptr));
    _stage->document.newScene();
    const std::unique_ptr<QProcess> program = startedProgram({file});
    QVERIFY(program);
    Autosave autosave(_stage->document, kept());
    QVERIFY(autosave.abandoned().isEmpty());

    program->kill();
    QVERIFY(program->waitForFinished());
    const QList<Autosave::Abandoned> found = autosave.abandoned();
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first().scene.path, file);
    QVERIFY(found.first().written.isValid());

    QSignalSpy finished(&_stage->document, &SceneDocument::openFinished);
    QVERIFY(autosave.takeUp(found.first()));
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(_stage->root().nodes().size(), std::size_t(2));
    QCOMPARE(_stage->root().nodes().back()->instanceName(), QStringLiteral("kept"));
    QCOMPARE(_stage->document.path(), file);
    QVERIFY(_stage->document.isModified());
    // The copy is this one's now.
    QVERIFY(autosave.abandoned().isEmpty());
    QCOMPARE(copies().size(), 1);
    QVERIFY(!QFile::exists(found.first().file));
    QVERIFY(!autosave.takeUp(found.first()));
}

void tst_autosave::the_scene_of_a_killed_process_can_be_discarded()
{
    const std::unique_ptr<QProcess> program = startedProgram();
    QVERIFY(program);
    program->kill();
    QVERIFY(program->waitForFinished());
    Autosave autosave(_stage->document, kept());
    QCOMPARE(autosave.abandoned().size(), 1);
    QCOMPARE(autosave.abandoned().first().scene.path, QString());
    autosave.discard(autosave.abandoned().first());
    QVERIFY(autosave.abandoned().isEmpty());
    QVERIFY(QDir(kept()).isEmpty());
}

void tst_autosave::a_copy_goes_when_the_scene_is_saved_or_its_owner_ends()
{
    auto autosave = std::make_unique<Autosave>(_stage->document, kept());
    autosave->setDelays(10, 100);
    _stage->addPeg("one");
    QTRY_COMPARE(copies().size(), 1);
    QVERIFY(_stage->document.saveAs(_stage->path("a.subnodes"), nullptr));
    QVERIFY(QDir(kept()).isEmpty());
    _stage->addPeg("two");
    QTRY_COMPARE(copies().size(), 1);
    autosave.reset();
    QVERIFY(QDir(kept()).isEmpty());
}

void tst_autosave::a_copy_goes_when_its_changes_are_gone()
{
    Autosave autosave(_stage->document, kept());
    autosave.setDelays(10, 100);
    _stage->addPeg("one");
    QTRY_COMPARE(copies().size(), 1);
    _stage->document.newScene();
    QVERIFY(QDir(kept()).isEmpty());
}

void tst_autosave::a_copy_is_written_while_changes_go_on()
{
    Autosave autosave(_stage->document, kept());
    autosave.setDelays(60000, 300);
    MO_Node* peg = _stage->addPeg("one");
    int change = 0;
    QVERIFY(QTest::qWaitFor([&] {
        peg->setX(++change);
        _stage->notify();
        return !copies().isEmpty();
    }));
}

void tst_autosave::two_at_work_leave_each_others_copies_alone()
{
    const std::unique_ptr<QProcess> program = startedProgram();
    QVERIFY(program);
    Autosave first(_stage->document, kept());
    first.setDelays(10, 100);
    Autosave second(_stage->document, kept());
    _stage->addPeg("one");
    QTRY_COMPARE(copies().size(), 2);
    QVERIFY(first.abandoned().isEmpty());
    QVERIFY(second.abandoned().isEmpty());
    for (const QString& copy : copies())
        second.discard({QDir(kept()).filePath(copy), {}, {}});
    QCOMPARE(copies().size(), 2);
    program->kill();
    QVERIFY(program->waitForFinished());
    QCOMPARE(second.abandoned().size(), 1);
}

void tst_autosave::copies_that_are_none_are_passed_over()
{
    QVERIFY(QDir().mkpath(kept()));
    _stage->write("kept/a.autosave", "nothing");
    _stage->write("kept/b.autosave", "{}");
    const Autosave autosave(_stage->document, kept());
    QVERIFY(autosave.abandoned().isEmpty());
    QCOMPARE(copies().size(), 2);
}

void tst_autosave::a_folder_that_cannot_be_written_is_told_once()
{
    _stage->write("kept", "a file in the way");
    Autosave autosave(_stage->document, kept());
    autosave.setDelays(10, 100);
    QSignalSpy failed(&autosave, &Autosave::failed);
    _stage->addPeg("one");
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(!failed.first().first().toString().contains('\n'));
    // Once it can be written, the copy comes with the next change.
    QVERIFY(QFile::remove(kept()));
    _stage->addPeg("two");
    QTRY_COMPARE(copies().size(), 1);
    QCOMPARE(failed.count(), 1);
}

QTEST_MAIN(tst_autosave)
#include "tst_autosave.moc"
