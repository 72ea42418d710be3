// SPDX-License-Identifier: MIT

#include "workbench/batch/CommandLine.h"

#include <QRegularExpression>
#include <QTest>

class tst_command_line : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void without_arguments_opens_an_empty_window();
    void takes_every_option();
    void each_flag_is_off_unless_given();
    void takes_each_form_of_a_value();
    void files_may_come_before_and_after_options();
    void what_can_be_repeated_keeps_its_order();
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
    const CommandLine& line = *outcome.commandLine;
    QVERIFY(!outcome.isError);
    QCOMPARE(outcome.text, QString());
    QVERIFY(line.files.isEmpty());
    QVERIFY(line.selectedNames.isEmpty());
    QVERIFY(line.actions.isEmpty());
    QVERIFY(!line.isBatch());
    QVERIFY(!line.size);
    QVERIFY(!line.frame);
    QVERIFY(!line.dump);
    QCOMPARE(line.theme, QString());
    QCOMPARE(line.filter, QString());
    QCOMPARE(line.saveAs, QString());
    QCOMPARE(line.screenshot, QString());
    QVERIFY(!line.extended && !line.formats && !line.noSettings && !line.watch && !line.quit);
}

void tst_command_line::takes_every_option()
{
    const CommandLine::Outcome outcome =
        parsed({"--screenshot", "a.png",  "--size",  "640x480",       "--frame",   "12",
                "--extended",   "--dump", "text",    "--select",      "Head",      "--action",
                "selectAll",    "--save", "a.json",  "--filter",      "arm",       "--theme",
                "dark",         "--quit", "--watch", "--no-settings", "model.gltf"});
    QVERIFY(outcome.commandLine);
    const CommandLine& line = *outcome.commandLine;
    QCOMPARE(line.screenshot, QStringLiteral("a.png"));
    QCOMPARE(line.size, std::optional(QSize(640, 480)));
    QCOMPARE(line.frame, std::optional(12));
    QCOMPARE(line.dump, std::optional(Dump::Text));
    QCOMPARE(line.selectedNames, QStringList{"Head"});
    QCOMPARE(line.actions, QStringList{"selectAll"});
    QCOMPARE(line.saveAs, QStringLiteral("a.json"));
    QCOMPARE(line.filter, QStringLiteral("arm"));
    QCOMPARE(line.theme, QStringLiteral("dark"));
    QCOMPARE(line.files, QStringList{"model.gltf"});
    QVERIFY(line.extended && line.quit && line.watch && line.noSettings);
    QVERIFY(!line.formats);
}

void tst_command_line::each_flag_is_off_unless_given()
{
    const auto flags = [](const QString& option) {
        const CommandLine line = *parsed({option}).commandLine;
        QStringList set;
        const std::pair<bool, const char*> all[] = {{line.extended, "--extended"},
                                                    {line.formats, "--formats"},
                                                    {line.noSettings, "--no-settings"},
                                                    {line.watch, "--watch"},
                                                    {line.quit, "--quit"}};
        for (const auto& [isSet, name] : all) {
            if (isSet)
                set += QLatin1String(name);
        }
        return set;
    };
    for (const char* option : {"--extended", "--formats", "--no-settings", "--watch", "--quit"})
        QCOMPARE(flags(QLatin1String(option)), QStringList{option});
}

void tst_command_line::takes_each_form_of_a_value()
{
    QCOMPARE(parsed({"m.obj", "--dump=json"}).commandLine->dump, std::optional(Dump::Json));
    for (const char* theme : {"light", "dark", "system"})
        QCOMPARE(parsed({"--theme", theme}).commandLine->theme, QLatin1String(theme));
    QCOMPARE(parsed({"--frame", "1"}).commandLine->frame, std::optional(1));
    QCOMPARE(parsed({"--size", "16384x1"}).commandLine->size, std::optional(QSize(16384, 1)));
    // What a filter contains is the business of whoever types it.
    QCOMPARE(parsed({"--filter", "--dump"}).commandLine->filter, QStringLiteral("--dump"));
    QCOMPARE(parsed({"--filter", ""}).commandLine->filter, QString());
}

void tst_command_line::files_may_come_before_and_after_options()
{
    const CommandLine::Outcome outcome = parsed({"a.obj", "--dump", "text", "b.fbx"});
    QVERIFY(outcome.commandLine);
    QCOMPARE(outcome.commandLine->files, (QStringList{"a.obj", "b.fbx"}));
    QCOMPARE(parsed({"--", "--dump"}).commandLine->files, QStringList{"--dump"});
}

void tst_command_line::what_can_be_repeated_keeps_its_order()
{
    const CommandLine::Outcome outcome =
        parsed({"--select", "b", "--action", "two", "m.obj", "--select=a", "--action=onMove(1)"});
    QVERIFY(outcome.commandLine);
    QCOMPARE(outcome.commandLine->selectedNames, (QStringList{"b", "a"}));
    QCOMPARE(outcome.commandLine->actions, (QStringList{"two", "onMove(1)"}));
}

void tst_command_line::help_is_no_error_and_names_every_option()
{
    const CommandLine::Outcome outcome = parsed({"--help"});
    QVERIFY(!outcome.commandLine);
    QVERIFY(!outcome.isError);
    QStringList named;
    static const QRegularExpression option(QStringLiteral("^ +(?:-\\w, )?(--[a-z-]+)"),
                                           QRegularExpression::MultilineOption);
    auto match = option.globalMatch(outcome.text);
    while (match.hasNext())
        named += match.next().captured(1);
    named.sort();
    QCOMPARE(named,
             (QStringList{"--action", "--dump", "--extended", "--filter", "--formats", "--frame",
                          "--help", "--no-settings", "--quit", "--save", "--screenshot", "--select",
                          "--size", "--theme", "--version", "--watch"}));
    QVERIFY(outcome.text.contains(QLatin1String("FILE")));
    QCOMPARE(parsed({"-h"}).text, outcome.text);
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
    row("a scene behind a model", {"m.obj", "s.subnodes"}, "s.subnodes");
    row("a second scene", {"a.subnodes", "b.SUBNODES"}, "b.SUBNODES");
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
    row("a negative frame", {"--frame", "-3"}, "-3");
    row("half a frame", {"--frame", "1.5"}, "1.5");
    row("no frame at all", {"--frame", ""}, "\"\"");
    row("an unknown dump", {"m.obj", "--dump", "xml"}, "xml");
    row("a dump in capitals", {"m.obj", "--dump", "JSON"}, "JSON");
    row("a dump of no format", {"m.obj", "--dump", ""}, "--dump");
    row("a dump without its format", {"m.obj", "--dump"}, "dump");
    row("a dump that takes the model for its format", {"--dump", "m.obj"}, "m.obj");
    row("an empty name to save as", {"m.obj", "--save", ""}, "--save");
    row("a name to save as that is missing", {"m.obj", "--save"}, "save");
    row("a filter without its text", {"m.obj", "--filter"}, "filter");
    row("an unknown theme", {"--theme", "neon"}, "neon");
    row("no theme at all", {"--theme", ""}, "--theme");
    row("a value for what takes none", {"--quit=now"}, "quit");
    row("a size of two lines", {"--size", "5x\n5"}, "5x");
    row("printing without a model", {"--dump", "text"}, "no model");
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
    QVERIFY(parsed({"m.obj", "--dump", "text"}).commandLine->isBatch());
    QVERIFY(parsed({"m.obj", "--dump", "json"}).commandLine->isBatch());
    QVERIFY(parsed({"--save", "a.json"}).commandLine->isBatch());
    QVERIFY(parsed({"--quit"}).commandLine->isBatch());
    QVERIFY(parsed({"m.obj", "--screenshot", "p.png"}).commandLine->isBatch());
    QVERIFY(parsed({"--formats"}).commandLine->isBatch());
    const CommandLine::Outcome outcome =
        parsed({"m.obj", "--select", "Head", "--action", "selectAll", "--extended", "--filter", "a",
                "--frame", "2", "--size", "9x9", "--theme", "dark", "--watch", "--no-settings"});
    QVERIFY(outcome.commandLine);
    QVERIFY(!outcome.commandLine->isBatch());
}

QTEST_APPLESS_MAIN(tst_command_line)
#include "tst_command_line.moc"
