// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/RatioReporter.h"

#include <functional>
#include <vector>

/// What the main function of every benchmark program does: an application off screen with
/// preferences of its own, the scene graph started, then the benchmarks that are registered, as the
/// command line picks them, and at last the ratios. Returns the exit code.
int runBenchmarks(int argc, char** argv, const std::function<void()>& registerAll,
                  const std::vector<RatioReporter::Aim>& aims);
