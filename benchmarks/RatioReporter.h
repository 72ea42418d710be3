// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

/// Shows the measurements as they come and, at the end, how they stand to each other: times differ
/// from machine to machine, their ratios hardly do.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    /// Measured times by name, in nanoseconds an iteration.
    using Times = std::map<std::string, double>;

    /// A ratio to report and the most that it should be. The floor may be made of several
    /// measurements; a ratio is left out when one of them was not made.
    struct Aim
    {
        std::string what;
        std::string measured;
        std::vector<std::string> floorNames;
        std::function<double(const std::vector<double>&)> floor;
        double atMost;
    };

    explicit RatioReporter(std::vector<Aim> aims);

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    std::vector<Aim> _aims;
    Times _times;
};

/// The aim that a measurement is at most so many times another one.
RatioReporter::Aim ratioAim(const std::string& measured, const std::string& floor, double atMost);

/// The aim that a measurement takes at most a time, which has a name for people.
RatioReporter::Aim timeAim(const std::string& measured, const std::string& what,
                           double nanoseconds);
