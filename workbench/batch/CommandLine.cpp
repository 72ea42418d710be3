// SPDX-License-Identifier: MIT

#include "workbench/batch/CommandLine.h"

#include "workbench/modelstream/OneLine.h"
#include "workbench/scenefile/SceneFormat.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

namespace {

struct Options
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    QCommandLineOption help{{"h", "help"}, tr("Shows this help.")};
    QCommandLineOption version{{"v", "version"}, tr("Shows the version.")};
    QCommandLineOption formats{"formats", tr("Lists the model formats that can be opened.")};
    QCommandLineOption frame{"frame", tr("The current frame; the first one is 1."), tr("N")};
    QCommandLineOption extended{"extended",
                                tr("Shows every scene-graph node, not the subnodes alone.")};
    QCommandLineOption filter{
        "filter", tr("Shows only subnodes whose name contains TEXT, and what leads to them."),
        tr("TEXT")};
    QCommandLineOption select{
        "select", tr("Selects the subnode NAME of the selected model; can be repeated."),
        tr("NAME")};
    QCommandLineOption action{
        "action", tr("Performs the action NAME, as menus do, after selecting; can be repeated."),
        tr("NAME")};
    QCommandLineOption dump{
        "dump", tr("Prints the subnodes of every model; FORMAT is text or json."), tr("FORMAT")};
    QCommandLineOption screenshot{"screenshot", tr("Saves a picture of the window as FILE."),
                                  tr("FILE")};
    QCommandLineOption size{"size", tr("The size of the window, in pixels."), tr("WxH")};
    QCommandLineOption save{"save", tr("Saves the scene as FILE in the end."), tr("FILE")};
    QCommandLineOption quit{"quit", tr("Ends when all is done, without waiting for a user.")};
    QCommandLineOption watch{"watch", tr("Reads a model again when its file changes.")};
    QCommandLineOption theme{"theme", tr("How the window looks: light, dark or system."),
                             tr("NAME")};
    QCommandLineOption noSettings{
        "no-settings",
        tr("Neither reads nor writes preferences, layout, recent files and automatic "
           "copies.")};

    void addTo(QCommandLineParser& parser) const
    {
        parser.setApplicationDescription(
            tr("Shows the inner hierarchy of 3D models and works on their parts."));
        parser.addOptions({help, version, formats, frame, extended, filter, select, action, dump,
                           screenshot, size, save, quit, watch, theme, noSettings});
        parser.addPositionalArgument(tr("FILE"),
                                     tr("A scene, or a model, whose element is named after the "
                                        "file. The first model is selected."),
                                     tr("[FILE...]"));
    }
};

/// Values are repeated as they were typed, and may be anything.
CommandLine::Outcome failure(const QString& text)
{
    return {std::nullopt, oneLine(text), true};
}

std::optional<QSize> parsedSize(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    constexpr int largest = 16384;
    if (size.isEmpty() || size.width() > largest || size.height() > largest)
        return std::nullopt;
    return size;
}

/// Qt leaves out the end of the last line where that was wrapped at certain places.
QString helpOf(const QCommandLineParser& parser)
{
    const QString text = parser.helpText();
    return text.endsWith(u'\n') ? text : text + u'\n';
}

/// What is wrong with the values that need more than their presence; empty when nothing is.
QString readValues(const QCommandLineParser& parser, const Options& options, CommandLine& line)
{
    for (const QCommandLineOption* option : {&options.screenshot, &options.save}) {
        if (parser.isSet(*option) && parser.value(*option).isEmpty())
            return Options::tr("--%1 needs the name of a file.").arg(option->names().first());
    }
    if (parser.isSet(options.size)) {
        line.size = parsedSize(parser.value(options.size));
        if (!line.size) {
            return Options::tr("--size needs a width and a height such as 1000x800, not \"%1\".")
                .arg(parser.value(options.size));
        }
    }
    if (parser.isSet(options.theme)) {
        line.theme = parser.value(options.theme);
        if (!QStringList{"light", "dark", "system"}.contains(line.theme))
            return Options::tr("--theme is light, dark or system, not \"%1\".").arg(line.theme);
    }
    if (parser.isSet(options.dump)) {
        const QString format = parser.value(options.dump);
        if (format != QLatin1String("text") && format != QLatin1String("json"))
            return Options::tr("--dump is text or json, not \"%1\".").arg(format);
        line.dump = format == QLatin1String("json") ? Dump::Json : Dump::Text;
    }
    if (parser.isSet(options.frame)) {
        bool isNumber = false;
        line.frame = parser.value(options.frame).toInt(&isNumber);
        if (!isNumber || *line.frame < 1) {
            return Options::tr("--frame needs a number from 1 on, not \"%1\".")
                .arg(parser.value(options.frame));
        }
    }
    return {};
}

} // namespace

CommandLine::Outcome CommandLine::parse(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    options.addTo(parser);
    if (!parser.parse(arguments))
        return failure(parser.errorText());
    if (parser.isSet(options.help))
        return {std::nullopt, helpOf(parser), false};
    if (parser.isSet(options.version))
        return {std::nullopt, QStringLiteral("subnode-workbench " SUBNODEVIEWS_VERSION "\n"),
                false};

    CommandLine line;
    line.files = parser.positionalArguments();
    line.screenshot = parser.value(options.screenshot);
    line.saveAs = parser.value(options.save);
    line.filter = parser.value(options.filter);
    line.selectedNames = parser.values(options.select);
    line.actions = parser.values(options.action);
    line.extended = parser.isSet(options.extended);
    line.formats = parser.isSet(options.formats);
    line.noSettings = parser.isSet(options.noSettings);
    line.watch = parser.isSet(options.watch);
    line.quit = parser.isSet(options.quit);
    const QString wrong = readValues(parser, options, line);
    if (!wrong.isEmpty())
        return failure(wrong);
    for (qsizetype i = 1; i < line.files.size(); ++i) {
        // A scene takes the place of what is open.
        if (line.files[i].endsWith(u'.' + SceneFormat::extension, Qt::CaseInsensitive))
            return failure(Options::tr("A scene can only be the first file, which \"%1\" is not.")
                               .arg(line.files[i]));
    }
    if (line.files.isEmpty() && (line.dump || !line.selectedNames.isEmpty()))
        return failure(Options::tr("There is no model to work on."));
    return {line, {}, false};
}
