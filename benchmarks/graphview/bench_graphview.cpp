// SPDX-License-Identifier: MIT

#include "benchmarks/graphview/GraphBenchmarks.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QApplication>
#include <QStandardPaths>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The user's own preferences must not decide what is measured.
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    osg::osgInit(argc, argv);
    registerGraphModelBenchmarks();
    registerGraphViewBenchmarks();
    registerItemBenchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    Aims aims = graphModelAims();
    for (const RatioReporter::Aim& aim : graphViewAims())
        aims.push_back(aim);
    RatioReporter reporter(aims);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
