// SPDX-License-Identifier: MIT

#include "host/preferences/PR_Preference.h"
#include "referencehost/services/Diagnostics.h"
#include "referencehost/session/HostSession.h"
#include "workbench/batch/BatchRun.h"
#include "workbench/batch/CommandLine.h"
#include "workbench/import/ModelImporter.h"
#include "workbench/language/Translations.h"
#include "workbench/preferences/PreferencesDialog.h"
#include "workbench/preferences/ThemeSwitch.h"
#include "workbench/resources/Resources.h"
#include "workbench/window/FileActions.h"
#include "workbench/window/WorkbenchWindow.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QApplication>
#include <QIcon>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    return arguments;
}

/// Off screen, Qt remarks on everything that a platform without a screen cannot do. That is nothing
/// to the user; standard error is for what went wrong.
void dropRemarks(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        printError(message);
}

/// Work without a user needs no display, and pictures come out the same everywhere without one.
void choosePlatform(const CommandLine& commandLine)
{
    const bool hasDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && (commandLine.isBatch() || !hasDisplay))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qgetenv("QT_QPA_PLATFORM") == "offscreen")
        qInstallMessageHandler(dropRemarks);
}

/// What is wrong, and the help, are said in the user's language, and that takes an application. The
/// real one comes later: the command line decides about its platform.
CommandLine::Outcome parsed(const QStringList& arguments)
{
    char name[] = "subnode-workbench";
    char* nameAlone[] = {name, nullptr};
    int count = 1;
    const QtMessageHandler before = qInstallMessageHandler(dropRemarks);
    const QCoreApplication application(count, nameAlone);
    qInstallMessageHandler(before);
    const Translations translations;
    return CommandLine::parse(arguments);
}

void printFormats()
{
    for (const ModelFormat& format : ModelImporter::supportedFormats()) {
        std::printf("%s\t%s\n", qUtf8Printable(format.extension),
                    qUtf8Printable(format.description));
    }
}

/// Views start out in the display mode of the preferences. A mode asked for on the command line is
/// for this run alone, so the user's own comes back once the views are made.
class DisplayModeForThisRun
{
public:
    explicit DisplayModeForThisRun(bool extended)
        : _preferred(preferences().getBoolValue(key(), false))
        , _changed(extended && !_preferred)
    {
        if (_changed)
            preferences().setBoolValue(key(), true);
    }
    ~DisplayModeForThisRun()
    {
        if (_changed)
            preferences().setBoolValue(key(), _preferred);
    }
    DisplayModeForThisRun(const DisplayModeForThisRun&) = delete;
    DisplayModeForThisRun& operator=(const DisplayModeForThisRun&) = delete;

private:
    static QString key() { return QStringLiteral("GV_EXTENDED_DISPLAY"); }
    static PR_Preference& preferences() { return *PR_Preference::instance(); }

    bool _preferred;
    bool _changed;
};

/// Takes the place of the user's settings with none, for as long as it lives.
class NoSettings
{
public:
    NoSettings()
    {
        for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope})
            QSettings::setPath(QSettings::NativeFormat, scope, _folder.path());
    }

private:
    QTemporaryDir _folder;
};

/// What is asked for on the command line, apart from what only a user can want.
int doWork(const CommandLine& commandLine, HostSession& session, WorkbenchWindow& window)
{
    BatchRun batch(commandLine, session, window);
    int code = batch.openFiles();
    batch.goToFrame();
    batch.setFilter();
    const ExitCode selected = batch.selectSubnodes();
    code = std::max<int>(code, selected);
    // Actions must not work on anything else.
    if (selected == ExitDone)
        code = std::max<int>(code, batch.performActions());
    if (commandLine.dump)
        code = std::max<int>(code, batch.dump());
    if (!commandLine.screenshot.isEmpty())
        code = std::max<int>(code, batch.takeScreenshot());
    if (!commandLine.saveAs.isEmpty())
        code = std::max<int>(code, batch.save(code == ExitDone));
    return code;
}

int run(const CommandLine& commandLine)
{
    HostSession session;
    // Kept in scene files, which are the same in every language, and shown nowhere.
    session.openScene(QStringLiteral("Untitled"));
    const ThemeSwitch theme(ThemeSwitch::fromName(commandLine.theme));

    WindowOptions options;
    // Pictures come out the same whatever the user's window is like.
    options.remembers = !commandLine.isBatch() && !commandLine.noSettings;
    options.watches = commandLine.watch;
    std::optional<DisplayModeForThisRun> mode(commandLine.extended);
    WorkbenchWindow window(session, options);
    mode.reset();
    QObject::connect(
        &window, &WorkbenchWindow::preferencesCreated, &theme,
        [&theme](PreferencesDialog* dialog) { dialog->setThemeOverridden(theme.isOverridden()); });
    if (commandLine.size)
        window.resize(*commandLine.size);

    if (commandLine.isBatch()) {
        window.files().setAsks(false);
        // What is asked for on the command line is data, and goes where data goes.
        Diagnostics::setSink([](const QString& text) { std::fputs(qUtf8Printable(text), stdout); });
        return doWork(commandLine, session, window);
    }
    window.show();
    window.files().offerAbandoned();
    const int code = doWork(commandLine, session, window);
    if (!window.isVisible())
        return code;
    const int ended = QApplication::exec();
    return ended != 0 ? ended : code;
}

} // namespace

int main(int argc, char** argv)
{
    const CommandLine::Outcome outcome = parsed(argumentsOf(argc, argv));
    if (!outcome.commandLine) {
        if (outcome.isError) {
            printError(outcome.text);
            return ExitUsage;
        }
        std::fputs(qUtf8Printable(outcome.text), stdout);
        return ExitDone;
    }
    if (outcome.commandLine->formats) {
        printFormats();
        return ExitDone;
    }

    choosePlatform(*outcome.commandLine);
    std::optional<NoSettings> noSettings;
    if (outcome.commandLine->noSettings)
        noSettings.emplace();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("subnode-workbench"));
    QApplication::setOrganizationName(QStringLiteral("subnode-views"));
    QApplication::setApplicationVersion(QStringLiteral(SUBNODEVIEWS_VERSION));
    initWorkbenchResources();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/workbench/application.svg")));
    QApplication::setDesktopFileName(QStringLiteral("subnode-workbench"));
    const Translations translations;
    osg::osgInit(argc, argv);
    const int code = run(*outcome.commandLine);
    osg::osgExit();
    return code;
}
