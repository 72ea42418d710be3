// SPDX-License-Identifier: MIT

#include "workbench/batch/CommandLine.h"

#include <QTest>

class tst_command_line : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void without_arguments_opens_an_empty_window();
    void takes_every_option();
    void models_may_come_before_and_after_options();
    void select_can_be_repeated_and_keeps_its_order();
    void help_is_no_error_and_names_every_option();
    void version_is_no_error();
    void refuses_data();
    void refuses();
    void work_without_a_user_is_told_from_work_with_one();

private:
    static CommandLine::Outcome parsed(const QStringList& arguments)
    {
        return CommandLine::parse(QStringList{"subnode-workbench"} + arguments);
    }
};

void tst_command_line::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void tst_command_line::without_arguments_opens_an_empty_window()
{
    const CommandLine::Outcome outcome = parsed({});
    QVERIFY(outcome.commandLine);
    QVERIFY(outcome.commandLine->models.isEmpty());
    QVERIFY(!outcome.commandLine->isBatch());
    QVERIFY(!outcome.commandLine->size);
    QCOMPARE(outcome.commandLine->frame, 1);
}

void tst_command_line::takes_every_option()
{
    const CommandLine::Outcome outcome =
        parsed({"--screenshot", "a.png", "--size", "640x480", "--frame", "12", "--extended",
                "--dump", "--select", "Head", "model.gltf"});
    QVERIFY(outcome.commandLine);
    const CommandLine& line = *outcome.commandLine;
    QCOMPARE(line.screenshot, QStringLiteral("a.png"));
    QCOMPARE(line.size, std::optional(QSize(640, 480)));
    QCOMPARE(line.frame, 12);
    QVERIFY(line.extended);
    QVERIFY(line.dump);
    QCOMPARE(line.selectedNames, QStringList{"Head"});
    QCOMPARE(line.models, QStringList{"model.gltf"});
}

void tst_command_line::models_may_come_before_and_after_options()
{
    const CommandLine::Outcome outcome = parsed({"a.obj", "--dump", "b.fbx"});
    QVERIFY(outcome.commandLine);
    QCOMPARE(outcome.commandLine->models, (QStringList{"a.obj", "b.fbx"}));
}

void tst_command_line::select_can_be_repeated_and_keeps_its_order()
{
    const CommandLine::Outcome outcome = parsed({"--select", "b", "m.obj", "--select=a"});
    QVERIFY(outcome.commandLine);
    QCOMPARE(outcome.commandLine->selectedNames, (QStringList{"b", "a"}));
}

void tst_command_line::help_is_no_error_and_names_every_option()
{
    const CommandLine::Outcome outcome = parsed({"--help"});
    QVERIFY(!outcome.commandLine);
    QVERIFY(!outcome.isError);
    for (const char* option : {"--screenshot", "--size", "--frame", "--select", "--extended",
                               "--dump", "--help", "--version", "--formats", "MODEL"})
        QVERIFY2(outcome.text.contains(QLatin1String(option)), option);
}

void tst_command_line::version_is_no_error()
{
    const CommandLine::Outcome outcome = parsed({"--version"});
    QVERIFY(!outcome.commandLine);
    QVERIFY(!outcome.isError);
    QCOMPARE(outcome.text, QStringLiteral("subnode-workbench " SUBNODEVIEWS_VERSION "\n"));
}

void tst_command_line::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("culprit");
    const auto row = [](const char* name, const QStringList& arguments, const char* culprit) {
        QTest::newRow(name) << arguments << QString::fromLatin1(culprit);
    };
    row("an unknown option", {"--wings"}, "wings");
    row("an option without its value", {"m.obj", "--screenshot"}, "screenshot");
    row("an empty picture name", {"m.obj", "--screenshot", ""}, "--screenshot");
    row("a size that is no size", {"--size", "large"}, "large");
    row("a size without a height", {"--size", "640"}, "640");
    row("a size of nothing", {"--size", "0x480"}, "0x480");
    row("a negative size", {"--size", "-5x5"}, "-5x5");
    row("a size larger than any screen", {"--size", "20000x10"}, "20000x10");
    row("a size of more digits than fit a number", {"--size", "99999999999x10"}, "99999999999x10");
    row("a frame that is no number", {"--frame", "two"}, "two");
    row("a frame before the first", {"--frame", "0"}, "0");
    row("a frame past all numbers", {"--frame", "99999999999"}, "99999999999");
    row("printing without a model", {"--dump"}, "no model");
    row("selecting without a model", {"--select", "Head"}, "no model");
}

void tst_command_line::refuses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, culprit);
    const CommandLine::Outcome outcome = parsed(arguments);
    QVERIFY(!outcome.commandLine);
    QVERIFY(outcome.isError);
    QVERIFY2(outcome.text.contains(culprit), qPrintable(outcome.text));
    QVERIFY2(!outcome.text.contains(u'\n'), "an error is one line");
}

void tst_command_line::work_without_a_user_is_told_from_work_with_one()
{
    QVERIFY(parsed({"m.obj", "--dump"}).commandLine->isBatch());
    QVERIFY(parsed({"m.obj", "--screenshot", "p.png"}).commandLine->isBatch());
    QVERIFY(parsed({"--formats"}).commandLine->isBatch());
    QVERIFY(!parsed({"m.obj", "--select", "Head", "--extended"}).commandLine->isBatch());
}

QTEST_APPLESS_MAIN(tst_command_line)
#include "tst_command_line.moc"
