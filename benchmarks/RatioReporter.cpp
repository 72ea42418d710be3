// SPDX-License-Identifier: MIT

#include "benchmarks/RatioReporter.h"

#include <cstdio>
#include <utility>

RatioReporter::RatioReporter(std::vector<Aim> aims)
    : ConsoleReporter(OO_Tabular)
    , _aims(std::move(aims))
{
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
            constexpr double nanoseconds = 1e9;
            const auto iterations = static_cast<double>(run.iterations);
            // The best of several repetitions is the one least disturbed.
            // What is done in other processes and threads, only the clock sees.
            const bool byTheClock = run.benchmark_name().ends_with("/real_time");
            const double accumulated =
                byTheClock ? run.real_accumulated_time : run.cpu_accumulated_time;
            const double time = accumulated / iterations * nanoseconds;
            const auto [it, isNew] = _times.emplace(run.benchmark_name(), time);
            if (!isNew && time < it->second)
                it->second = time;
        }
    }
    ConsoleReporter::ReportRuns(runs);
}

void RatioReporter::Finalize()
{
    std::printf("\n%-62s %10s %10s\n", "ratio", "measured", "aim");
    for (const Aim& aim : _aims) {
        const auto measured = _times.find(aim.measured);
        std::vector<double> floor;
        for (const std::string& name : aim.floorNames) {
            if (const auto it = _times.find(name); it != _times.end())
                floor.push_back(it->second);
        }
        if (measured == _times.end() || floor.size() != aim.floorNames.size())
            continue;
        const double ratio = measured->second / aim.floor(floor);
        std::printf("%-62s %10.2f %10.2f%s\n", aim.what.c_str(), ratio, aim.atMost,
                    ratio > aim.atMost ? "  missed" : "");
    }
}

RatioReporter::Aim ratioAim(const std::string& measured, const std::string& floor, double atMost)
{
    return {measured + " to " + floor,
            measured,
            {floor},
            [](const std::vector<double>& times) { return times.at(0); },
            atMost};
}

RatioReporter::Aim timeAim(const std::string& measured, const std::string& what, double nanoseconds)
{
    return {measured + " to " + what,
            measured,
            {},
            [nanoseconds](const std::vector<double>&) { return nanoseconds; },
            1.0};
}
