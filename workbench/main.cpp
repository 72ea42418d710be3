// SPDX-License-Identifier: MIT

#include "host/preferences/PR_Preference.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "referencehost/services/Diagnostics.h"
#include "referencehost/session/HostSession.h"
#include "workbench/WorkbenchWindow.h"
#include "workbench/batch/BatchRun.h"
#include "workbench/batch/CommandLine.h"
#include "workbench/import/ModelImporter.h"
#include "workbench/preferences/Theme.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QApplication>
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

int run(const CommandLine& commandLine)
{
    HostSession session;
    TUScene& scene = session.openScene(QApplication::translate("main", "Scene"));
    session.context().currentFrameInterface()->setCurrentFrame(&scene, commandLine.frame);
    session.context().changeManager()->notify();

    std::optional<DisplayModeForThisRun> mode(commandLine.extended);
    WorkbenchWindow window(session);
    mode.reset();
    if (commandLine.size)
        window.resize(*commandLine.size);

    // What is asked for on the command line is data, and goes where data goes.
    if (commandLine.isBatch())
        Diagnostics::setSink([](const QString& text) { std::fputs(qUtf8Printable(text), stdout); });
    BatchRun batch(commandLine, session, window);
    if (!commandLine.isBatch())
        window.show();
    int code = batch.openModels();
    code = std::max<int>(code, batch.selectSubnodes());
    code = std::max<int>(code, batch.performActions());
    if (commandLine.dump)
        code = std::max<int>(code, batch.dump());
    if (!commandLine.screenshot.isEmpty())
        code = std::max<int>(code, batch.takeScreenshot());
    if (commandLine.isBatch() || !window.isVisible())
        return code;
    const int ended = QApplication::exec();
    return ended != 0 ? ended : code;
}

} // namespace

int main(int argc, char** argv)
{
    const CommandLine::Outcome outcome = CommandLine::parse(argumentsOf(argc, argv));
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
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("subnode-workbench"));
    QApplication::setOrganizationName(QStringLiteral("subnode-views"));
    QApplication::setApplicationVersion(QStringLiteral(SUBNODEVIEWS_VERSION));
    Theme::apply(Theme::fromName(outcome.commandLine->theme).value_or(Theme::Light));
    osg::osgInit(argc, argv);
    const int code = run(*outcome.commandLine);
    osg::osgExit();
    return code;
}
