// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// Runs the program as a shell would and looks at its exit code, its two streams and its pictures.
class tst_program : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void help_goes_to_standard_output();
    void version_goes_to_standard_output();
    void formats_are_listed_without_opening_anything();
    void dump_prints_the_tree_and_nothing_else();
    void dump_is_the_same_every_time();
    void dump_of_several_models_keeps_their_order();
    void extended_dump_has_every_node_with_its_type();
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

private:
    struct Run
    {
        int code = -1;
        QByteArray out;
        QByteArray error;
    };
    Run run(const QStringList& arguments) const;
    QString path(const QString& name) const { return _folder->filePath(name); }
    QImage picture(const QStringList& arguments) const;
    void write(const QString& name, const QByteArray& bytes) const;

    const QString _robot = QStringLiteral(MODELS "/robot.gltf");
    const QString _crane = QStringLiteral(MODELS "/crane.gltf");
    std::unique_ptr<QTemporaryDir> _folder;
};

void tst_program::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
    _folder = std::make_unique<QTemporaryDir>();
    QVERIFY(_folder->isValid());
}

tst_program::Run tst_program::run(const QStringList& arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Every run starts with settings of its own, and finds out by itself that there is no display.
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("config")));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(_folder->path());
    process.start(QStringLiteral(PROGRAM), arguments);
    constexpr int patience = 120000;
    if (!process.waitForFinished(patience))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

QImage tst_program::picture(const QStringList& arguments) const
{
    const QString file = path(QStringLiteral("picture.png"));
    QFile::remove(file);
    const Run done = run(arguments + QStringList{"--screenshot", file});
    return done.code == 0 && done.error.isEmpty() ? QImage(file) : QImage();
}

void tst_program::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

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

void tst_program::dump_prints_the_tree_and_nothing_else()
{
    const Run done = run({_robot, "--dump"});
    QCOMPARE(done.code, 0);
    QCOMPARE(done.error, QByteArray());
    const QList<QByteArray> lines = done.out.split('\n');
    QCOMPARE(lines.first(), QByteArray("robot"));
    QVERIFY(lines.at(1).startsWith("  "));
    QVERIFY(lines.size() > 30);
}

void tst_program::dump_is_the_same_every_time()
{
    QCOMPARE(run({_robot, "--dump", "--extended"}).out, run({_robot, "--dump", "--extended"}).out);
}

void tst_program::dump_of_several_models_keeps_their_order()
{
    const QByteArray out = run({_crane, _robot, _crane, "--dump"}).out;
    QVERIFY(out.startsWith("crane\n"));
    QVERIFY(out.contains("\nrobot\n"));
    QVERIFY(out.indexOf("\ncrane_2\n") > out.indexOf("\nrobot\n"));
}

void tst_program::extended_dump_has_every_node_with_its_type()
{
    const QByteArray out = run({_robot, "--dump", "--extended"}).out;
    QVERIFY(out.contains(" [KeyTransform]\n"));
    QVERIFY(out.contains(" [Group]\n"));
    QVERIFY(out.contains(" [Geometry]\n"));
    QVERIFY(out.count('\n') > run({_robot, "--dump"}).out.count('\n'));
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
    const QByteArray tree = run({_robot, "--dump"}).out;
    const QString name = QString::fromUtf8(tree.split('\n').at(1)).trimmed();
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
    // The frame box shows the number; the model shows on every frame.
    const QImage first = picture({_robot});
    const QImage later = picture({_robot, "--frame", "500"});
    QVERIFY(!first.isNull());
    QVERIFY(first != later);
    const QRect views = first.rect().adjusted(0, 100, 0, 0);
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
    const Run done = run({_robot, "--dump", "--action", "onActionFly", "--action",
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
    const Run done = run({_robot, "--dump", "--select", "Third Arm"});
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
    const Run done = run({path(name), "--dump"});
    QCOMPARE(done.code, 1);
    QCOMPARE(done.out, QByteArray());
    QCOMPARE(done.error.count('\n'), 1);
    QVERIFY2(done.error.contains(name.toUtf8()), done.error.constData());
}

void tst_program::a_bad_file_does_not_stop_the_others()
{
    const Run done = run({path(QStringLiteral("missing.gltf")), _robot, _folder->path(), "--dump"});
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
