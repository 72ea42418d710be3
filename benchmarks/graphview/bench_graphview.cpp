// SPDX-License-Identifier: MIT

#include "benchmarks/BenchmarkProgram.h"
#include "benchmarks/graphview/GraphBenchmarks.h"

int main(int argc, char** argv)
{
    Aims aims = graphModelAims();
    for (const RatioReporter::Aim& aim : graphViewAims())
        aims.push_back(aim);
    return runBenchmarks(
        argc, argv,
        [] {
            registerGraphModelBenchmarks();
            registerGraphViewBenchmarks();
            registerItemBenchmarks();
        },
        aims);
}
