// SPDX-License-Identifier: MIT

#include "benchmarks/BenchmarkProgram.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QApplication>
#include <QStandardPaths>

namespace {

/// Off screen, Qt remarks on what a platform without a screen cannot do.
void dropRemarks(QtMsgType, const QMessageLogContext&, const QString&)
{
}

} // namespace

int runBenchmarks(int argc, char** argv, const std::function<void()>& registerAll,
                  const std::vector<RatioReporter::Aim>& aims)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The user's own preferences must not decide what is measured.
    QStandardPaths::setTestModeEnabled(true);
    qInstallMessageHandler(dropRemarks);
    const QApplication application(argc, argv);
    osg::osgInit(argc, argv);
    registerAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RatioReporter reporter(aims);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
