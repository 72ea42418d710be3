// SPDX-License-Identifier: MIT

#include "workbench/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

namespace {

struct Options
{
    QCommandLineOption help{{"h", "help"}, tr("Shows this help.")};
    QCommandLineOption version{{"v", "version"}, tr("Shows the version.")};
    QCommandLineOption formats{"formats", tr("Lists the model formats that can be opened.")};
    QCommandLineOption dump{"dump", tr("Prints the subnodes of every model as an indented tree.")};
    QCommandLineOption extended{"extended",
                                tr("Shows every scene-graph node, not the subnodes alone.")};
    QCommandLineOption screenshot{"screenshot", tr("Saves a picture of the window as FILE."),
                                  "FILE"};
    QCommandLineOption size{"size", tr("The size of the window, in pixels."), "WxH"};
    QCommandLineOption frame{"frame", tr("The current frame; the first one is 1."), "N"};
    QCommandLineOption select{
        "select", tr("Selects the subnode NAME of the first model; can be repeated."), "NAME"};
    QCommandLineOption action{
        "action", tr("Performs the action NAME, as menus do, after selecting; can be repeated."),
        "NAME"};

    QCommandLineOption theme{"theme", tr("How the window looks: light, dark or system."), "NAME"};

    static QString tr(const char* text) { return QCoreApplication::translate("CommandLine", text); }

    void addTo(QCommandLineParser& parser) const
    {
        parser.setApplicationDescription(
            tr("Shows the inner hierarchy of 3D models and works on their parts."));
        parser.addOptions({help, version, formats, dump, extended, screenshot, size, frame, select,
                           action, theme});
        parser.addPositionalArgument("MODEL",
                                     tr("A model file to open; its element is named "
                                        "after it. The first one is selected."),
                                     "[MODEL...]");
    }
};

CommandLine::Outcome failure(const QString& text)
{
    return {std::nullopt, text, true};
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

} // namespace

CommandLine::Outcome CommandLine::parse(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    options.addTo(parser);
    if (!parser.parse(arguments))
        return failure(parser.errorText());
    if (parser.isSet(options.help))
        return {std::nullopt, parser.helpText(), false};
    if (parser.isSet(options.version))
        return {std::nullopt, QStringLiteral("subnode-workbench " SUBNODEVIEWS_VERSION "\n"),
                false};

    CommandLine line;
    line.models = parser.positionalArguments();
    line.screenshot = parser.value(options.screenshot);
    line.selectedNames = parser.values(options.select);
    line.actions = parser.values(options.action);
    line.extended = parser.isSet(options.extended);
    line.dump = parser.isSet(options.dump);
    line.formats = parser.isSet(options.formats);

    if (parser.isSet(options.screenshot) && line.screenshot.isEmpty())
        return failure(Options::tr("--screenshot needs the name of a file."));
    if (parser.isSet(options.size)) {
        line.size = parsedSize(parser.value(options.size));
        if (!line.size) {
            return failure(Options::tr("--size needs a width and a height such as 1000x800, not "
                                       "\"%1\".")
                               .arg(parser.value(options.size)));
        }
    }
    if (parser.isSet(options.theme)) {
        line.theme = parser.value(options.theme);
        if (!QStringList{"light", "dark", "system"}.contains(line.theme)) {
            return failure(
                Options::tr("--theme is light, dark or system, not \"%1\".").arg(line.theme));
        }
    }
    if (parser.isSet(options.frame)) {
        bool isNumber = false;
        line.frame = parser.value(options.frame).toInt(&isNumber);
        if (!isNumber || line.frame < 1) {
            return failure(Options::tr("--frame needs a number from 1 on, not \"%1\".")
                               .arg(parser.value(options.frame)));
        }
    }
    if (line.models.isEmpty() && (line.dump || !line.selectedNames.isEmpty()))
        return failure(Options::tr("There is no model to work on."));
    return {line, {}, false};
}
