// SPDX-License-Identifier: MIT

#include "ProgramTest.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

/// Runs the program on scenes, and on files that are after it.
class tst_program_scenes : public ProgramTest
{
    Q_OBJECT

private:
    QStringList filesBelow(const QString& name) const
    {
        QStringList found;
        QDirIterator files(path(name), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            found << files.next();
        return found;
    }
    /// A scene with the robot, an arm of it hidden and the head selected.
    QString armScene() const
    {
        const QString scene = path(QStringLiteral("arm.subnodes"));
        run({_robot, "--select", "LeftUpperArm", "--action", "onActionHideNodes", "--action",
             "deselect", "--frame", "7", "--save", scene});
        return scene;
    }

private slots:
    void init() { openFolder(); }

    void a_saved_scene_is_the_same_when_it_is_opened_again()
    {
        const QString scene = armScene();
        const Run saved = run({scene, "--dump", "json"});
        QCOMPARE(saved.code, 0);
        QCOMPARE(saved.error, QByteArray());
        QVERIFY(saved.out.contains("\"frame\": 7"));
        QCOMPARE(saved.out.count("\"disabled\":true"), 1);
        const QString again = path(QStringLiteral("again.subnodes"));
        QCOMPARE(run({scene, "--save", again}).code, 0);
        QFile first(scene);
        QFile second(again);
        QVERIFY(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
        QCOMPARE(second.readAll(), first.readAll());
    }

    void models_are_added_to_a_scene()
    {
        const Run both = run({armScene(), _crane, "--dump", "text"});
        QCOMPARE(both.code, 0);
        QVERIFY(both.out.startsWith("robot\n"));
        QVERIFY(both.out.contains("\ncrane\n"));
        QCOMPARE(both.out.count(" disabled"), 1);
    }

    void a_scene_without_its_model_opens_with_one_line()
    {
        const QString model = path(QStringLiteral("model.gltf"));
        QVERIFY(QFile::copy(_robot, model));
        const QString scene = path(QStringLiteral("gone.subnodes"));
        QCOMPARE(run({model, "--save", scene}).code, 0);
        QVERIFY(QFile::remove(model));
        const Run done = run({scene, "--dump", "text"});
        QCOMPARE(done.code, 1);
        QCOMPARE(done.error.count('\n'), 1);
        QVERIFY2(done.error.contains("model.gltf"), done.error.constData());
        QCOMPARE(done.out, QByteArray("model\n"));
    }

    void a_scene_that_was_not_read_wholly_is_not_replaced()
    {
        const QByteArray later = "{\"format\": \"subnode-scene\", \"version\": 99, \"wings\": 2}\n";
        write(QStringLiteral("later.subnodes"), later);
        const QString scene = path(QStringLiteral("later.subnodes"));
        const Run done = run({scene, "--save", scene});
        QCOMPARE(done.code, 1);
        QVERIFY(done.error.count('\n') >= 1);
        QFile file(scene);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), later);
    }

    void nothing_is_saved_when_something_went_wrong()
    {
        const QString scene = armScene();
        QFile file(scene);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray before = file.readAll();
        file.close();
        const Run missing = run({path(QStringLiteral("typo.gltf")), "--save", scene});
        QCOMPARE(missing.code, 1);
        QCOMPARE(missing.error.count('\n'), 2);
        const Run unknown = run({_robot, "--select", "Nope", "--save", scene});
        QCOMPARE(unknown.code, 2);
        QVERIFY2(unknown.error.contains("arm.subnodes was not saved"), unknown.error.constData());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), before);
    }

    void a_file_that_is_no_scene_is_one_line()
    {
        write(QStringLiteral("letter.subnodes"), "Dear Robot,\n");
        const Run done = run({path(QStringLiteral("letter.subnodes")), "--quit"});
        QCOMPARE(done.code, 1);
        QCOMPARE(done.error.count('\n'), 1);
        QVERIFY(done.error.contains("letter.subnodes"));
    }

    void a_scene_that_cannot_be_saved_is_an_error()
    {
        const QString nowhere = path(QStringLiteral("no/such/folder/s.subnodes"));
        const Run done = run({_robot, "--save", nowhere});
        QCOMPARE(done.code, 1);
        QCOMPARE(done.error.count('\n'), 1);
        QVERIFY(done.error.contains("s.subnodes"));
    }

    void a_model_is_never_replaced_by_a_scene()
    {
        const QString model = path(QStringLiteral("model.gltf"));
        QVERIFY(QFile::copy(_robot, model));
        const Run done = run({model, "--save", model});
        QCOMPARE(done.code, 1);
        QCOMPARE(done.error.count('\n'), 1);
        QCOMPARE(QFileInfo(model).size(), QFileInfo(_robot).size());
    }

    void selecting_takes_the_place_of_what_the_scene_was_saved_with()
    {
        const QString scene = path(QStringLiteral("neck.subnodes"));
        QCOMPARE(run({_robot, "--select", "Neck", "--save", scene}).code, 0);
        const Run done =
            run({scene, "--select", "Head", "--action", "onActionHideNodes", "--dump", "text"});
        QCOMPARE(done.code, 0);
        QVERIFY(done.out.contains("Head [KeyTransform] key disabled selected"));
        QCOMPARE(done.out.count(" disabled"), 1);
        QCOMPARE(done.out.count(" selected"), 1);
        // Where nothing was saved as selected, the first model is meant.
        const Run unselected = run({armScene(), "--select", "Head", "--dump", "text"});
        QCOMPARE(unselected.code, 0);
        QCOMPARE(unselected.out.count(" selected"), 1);
    }

    void actions_are_left_undone_when_their_subnode_is_not_there()
    {
        const QString scene = path(QStringLiteral("neck.subnodes"));
        QCOMPARE(run({_robot, "--select", "Neck", "--save", scene}).code, 0);
        const Run done =
            run({scene, "--select", "Typo", "--action", "onActionHideNodes", "--dump", "text"});
        QCOMPARE(done.code, 2);
        QCOMPARE(done.out.count(" disabled"), 0);
    }

    void quitting_needs_nothing_else()
    {
        const Run done = run({_robot, "--quit"});
        QCOMPARE(done.code, 0);
        QCOMPARE(done.out + done.error, QByteArray());
    }

    void without_settings_nothing_is_read_or_written()
    {
        // The display mode is a preference that an action changes.
        const QStringList toggle{_robot, "--action", "onActionToggleDislayMode", "--quit"};
        QCOMPARE(run(toggle + QStringList{"--no-settings"}).code, 0);
        QCOMPARE(filesBelow(QStringLiteral("config")), QStringList());
        const QImage plain = picture({_robot, "--no-settings"});
        QCOMPARE(run(toggle).code, 0);
        QVERIFY(!filesBelow(QStringLiteral("config")).isEmpty());
        QVERIFY(picture({_robot}) != plain);
        QCOMPARE(picture({_robot, "--no-settings"}), plain);
    }

    void a_file_that_starves_its_importer_costs_one_line()
    {
        const QString killer =
            QStringLiteral(SUBNODEVIEWS_ASSIMP_MODELS "/invalid/OutOfMemory.off");
        QVERIFY2(QFile::exists(killer), "The package assimp-testmodels is missing.");
        const Run done = run({killer, _robot, "--dump", "text"});
        QCOMPARE(done.code, 1);
        QVERIFY(done.out.startsWith("robot\n"));
        QCOMPARE(done.error.count('\n'), 1);
        QVERIFY2(done.error.contains("OutOfMemory.off"), done.error.constData());
    }
};

QTEST_GUILESS_MAIN(tst_program_scenes)
#include "tst_program_scenes.moc"
