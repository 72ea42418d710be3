// SPDX-License-Identifier: MIT

#include "tests/workbench/ProgramTest.h"

/// Looks at the exit code of the program, its two streams and its pictures.
class tst_program : public ProgramTest
{
    Q_OBJECT

private slots:
    void init() { openFolder(); }
    void help_goes_to_standard_output();
    void version_goes_to_standard_output();
    void formats_are_listed_without_opening_anything();
    void screenshot_shows_the_graph();
    void selecting_a_subnode_changes_the_picture();
    void extended_display_changes_the_picture_for_this_run_alone();
    void a_frame_is_taken();
    void actions_are_performed_in_order();
    void actions_that_cannot_be_performed_are_a_wrong_use();
    void unknown_subnodes_are_a_wrong_use();
    void wrong_use_is_one_line();
    void bad_files_data();
    void bad_files();
    void a_bad_file_does_not_stop_the_others();
    void a_picture_that_cannot_be_written_is_an_error();
};

void tst_program::help_goes_to_standard_output()
{
    const Run done = run({"--help"});
    QCOMPARE(done.code, 0);
    QVERIFY(done.out.contains("--screenshot"));
    QCOMPARE(done.error, QByteArray());
}

void tst_program::version_goes_to_standard_output()
{
    const Run done = run({"--version"});
    QCOMPARE(done.code, 0);
    QCOMPARE(done.out, QByteArray("subnode-workbench " VERSION "\n"));
    QCOMPARE(done.error, QByteArray());
}

void tst_program::formats_are_listed_without_opening_anything()
{
    const Run done = run({"--formats"});
    QCOMPARE(done.code, 0);
    QVERIFY(done.out.contains("gltf\t"));
    QVERIFY(done.out.contains("fbx\t"));
    QVERIFY(done.out.contains("dae\t"));
    QCOMPARE(done.error, QByteArray());
}

void tst_program::screenshot_shows_the_graph()
{
    const QImage shown = picture({_robot, "--size", "640x480"});
    QCOMPARE(shown.size(), QSize(640, 480));
    // The boxes of what can be acted on, and the lines that join them.
    int boxes = 0;
    int lines = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            boxes += shown.pixel(x, y) == qRgb(69, 90, 163) ? 1 : 0;
            lines += shown.pixel(x, y) == qRgb(255, 255, 255) ? 1 : 0;
        }
    }
    QVERIFY2(boxes > 10000, qPrintable(QString::number(boxes)));
    QVERIFY2(lines > 300, qPrintable(QString::number(lines)));
}

void tst_program::selecting_a_subnode_changes_the_picture()
{
    const QByteArray tree = run({_robot, "--dump", "text"}).out;
    const QString line = QString::fromUtf8(tree.split('\n').at(1)).trimmed();
    const QString name = line.section(QStringLiteral(" ["), 0, 0);
    const QImage plain = picture({_robot});
    const QImage selected = picture({_robot, "--select", name});
    QVERIFY(!plain.isNull());
    QVERIFY(!selected.isNull());
    QVERIFY(plain != selected);
}

void tst_program::extended_display_changes_the_picture_for_this_run_alone()
{
    const QImage before = picture({_robot});
    const QImage extended = picture({_robot, "--extended"});
    QVERIFY(!before.isNull());
    QVERIFY(before != extended);
    QCOMPARE(picture({_robot}), before);
}

void tst_program::a_frame_is_taken()
{
    // The timeline, below the views, shows the frame; the model shows on every one.
    const QImage first = picture({_robot});
    const QImage later = picture({_robot, "--frame", "500"});
    QVERIFY(!first.isNull());
    QVERIFY(first != later);
    const QRect views = first.rect().adjusted(0, 0, 0, -160);
    QCOMPARE(later.copy(views), first.copy(views));
}

void tst_program::actions_are_performed_in_order()
{
    const QImage plain = picture({_robot});
    const QImage folded = picture({_robot, "--action", "onActionCollapseAllNodes"});
    QVERIFY(!plain.isNull());
    QVERIFY(!folded.isNull());
    QVERIFY(plain != folded);
    QCOMPARE(picture({_robot, "--action", "onActionCollapseAllNodes", "--action",
                      "onActionExpandAllNodes()"}),
             plain);
    QVERIFY(picture({_robot, "--action", "onActionMoveWorld(0)"}) != plain);
}

void tst_program::actions_that_cannot_be_performed_are_a_wrong_use()
{
    const Run done = run({_robot, "--dump", "text", "--action", "onActionFly", "--action",
                          "onActionExpandAllNodes", "--action", "destroy everything"});
    QCOMPARE(done.code, 2);
    QCOMPARE(done.error,
             QByteArray("subnode-workbench: There is no action \"onActionFly\".\n"
                        "subnode-workbench: The action \"onActionExpandAllNodes\" is not "
                        "available now.\n"
                        "subnode-workbench: There is no action \"destroy everything\".\n"));
    QVERIFY(done.out.startsWith("robot"));
}

void tst_program::unknown_subnodes_are_a_wrong_use()
{
    const Run done = run({_robot, "--dump", "text", "--select", "Third Arm"});
    QCOMPARE(done.code, 2);
    QCOMPARE(done.error,
             QByteArray("subnode-workbench: robot has no subnode named \"Third Arm\".\n"));
}

void tst_program::wrong_use_is_one_line()
{
    const Run done = run({"--size", "huge"});
    QCOMPARE(done.code, 2);
    QCOMPARE(done.out, QByteArray());
    QCOMPARE(done.error.count('\n'), 1);
    QVERIFY(done.error.contains("huge"));
}

void tst_program::bad_files_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("exists");
    QTest::newRow("missing") << "missing.gltf" << QByteArray() << false;
    QTest::newRow("empty") << "empty.gltf" << QByteArray() << true;
    QTest::newRow("cut short") << "short.gltf" << QByteArray("{\"asset\":{\"version\":\"2.0\"")
                               << true;
    QTest::newRow("unknown kind") << "letter.txt" << QByteArray("Dear Robot,\n") << true;
    QTest::newRow("no nodes") << "nothing.gltf" << QByteArray("{\"asset\":{\"version\":\"2.0\"}}")
                              << true;
}

void tst_program::bad_files()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, exists);
    if (exists)
        write(name, bytes);
    const Run done = run({path(name), "--dump", "text"});
    QCOMPARE(done.code, 1);
    QCOMPARE(done.out, QByteArray());
    QCOMPARE(done.error.count('\n'), 1);
    QVERIFY2(done.error.contains(name.toUtf8()), done.error.constData());
}

void tst_program::a_bad_file_does_not_stop_the_others()
{
    const Run done =
        run({path(QStringLiteral("missing.gltf")), _robot, _folder->path(), "--dump", "text"});
    QCOMPARE(done.code, 1);
    QVERIFY(done.out.startsWith("robot\n"));
    QCOMPARE(done.error.count('\n'), 2);
}

void tst_program::a_picture_that_cannot_be_written_is_an_error()
{
    const QString nowhere = path(QStringLiteral("no/such/folder/p.png"));
    const Run done = run({_robot, "--screenshot", nowhere});
    QCOMPARE(done.code, 1);
    QCOMPARE(done.error.count('\n'), 1);
    QVERIFY(done.error.contains(nowhere.toUtf8()));
}

QTEST_GUILESS_MAIN(tst_program)
#include "tst_program.moc"
