// SPDX-License-Identifier: MIT

#include "benchmarks/BenchmarkProgram.h"
#include "benchmarks/workbench/BigModelFile.h"
#include "benchmarks/workbench/StepWatch.h"
#include "referencehost/session/HostSession.h"
#include "workbench/import/AssimpReader.h"
#include "workbench/modelstream/DeepStackThread.h"
#include "workbench/window/WorkbenchWindow.h"

#include <QApplication>
#include <QEventLoop>
#include <QPixmap>
#include <malloc.h>
#include <memory>

namespace {

using benchmark::State;

int nodesOf(const State& state)
{
    return static_cast<int>(state.range(0));
}

double usedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// What the reading library takes by itself, in this process.
void readAlone(State& state)
{
    const BigModelFile file(nodesOf(state));
    for (auto _ : state) {
        DeepStackThread::runAndWait([&] {
            const double before = usedBytes();
            AssimpReader reader(nullptr, 1.0);
            if (!reader.read(file.path().toStdString()))
                state.SkipWithError("the model cannot be read");
            state.counters["bytes_a_node"] = (usedBytes() - before) / nodesOf(state);
        });
    }
}

/// From asking for the file until the first picture with the whole model in both views.
void openToPicture(State& state)
{
    const BigModelFile file(nodesOf(state));
    for (auto _ : state) {
        state.PauseTiming();
        HostSession session;
        session.openScene(QStringLiteral("bench"));
        auto window = std::make_unique<WorkbenchWindow>(session);
        window->show();
        QApplication::processEvents();
        const double before = usedBytes();
        StepWatch steps;
        state.ResumeTiming();

        QEventLoop loop;
        QObject::connect(&window->loader(), &ModelLoader::finished, &loop, &QEventLoop::quit);
        window->loader().load({file.path()});
        loop.exec();
        QApplication::processEvents();
        const double longest = steps.longestInMilliseconds();
        benchmark::DoNotOptimize(window->grab());

        state.PauseTiming();
        state.counters["bytes_a_node"] = (usedBytes() - before) / nodesOf(state);
        state.counters["longest_step_ms"] = longest;
        window.reset();
        state.ResumeTiming();
    }
}

void registerOne(const char* name, void (*measure)(State&))
{
    // The importing program has a process of its own, so only the clock sees all of it.
    benchmark::RegisterBenchmark(name, measure)
        ->Arg(1000)
        ->Arg(10000)
        ->Arg(100000)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
}

void registerAll()
{
    registerOne("read_alone", readAlone);
    registerOne("open_to_picture", openToPicture);
}

} // namespace

int main(int argc, char** argv)
{
    return runBenchmarks(
        argc, argv, registerAll,
        {ratioAim("open_to_picture/100000/real_time", "read_alone/100000/real_time", 2.0)});
}
