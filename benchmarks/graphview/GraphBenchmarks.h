// SPDX-License-Identifier: MIT
#pragma once

#include "benchmarks/RatioReporter.h"
#include "benchmarks/SampleGraph.h"
#include "host/models/CEL_SharedPtr.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

class TD_CelVq3d;

using Aims = std::vector<RatioReporter::Aim>;

/// The UI model: building, layout and searches.
void registerGraphModelBenchmarks();
Aims graphModelAims();

/// The view: frames, gestures and actions, until what they change is painted.
void registerGraphViewBenchmarks();
Aims graphViewAims();

/// The same tree as one graphics item a node, which is how programs of this kind are mostly built.
void registerItemBenchmarks();

/// The model of a benchmark, kept from one to the next as long as they ask for the same.
CEL_SharedPtr<TD_CelVq3d> sampleModel(Shape shape, int nodes);

std::vector<std::pair<std::string, Shape>> shapes();

/// Registers "what/shape" for every shape and every size that the shape is measured at.
void registerFor(const std::string& what, benchmark::BigO complexity,
                 const std::function<void(benchmark::State&, Shape)>& measure);
