// SPDX-License-Identifier: MIT

#include "benchmarks/graphview/GraphBenchmarks.h"

#include "host/models/TD_CelVq3d.h"

#include <memory>

CEL_SharedPtr<TD_CelVq3d> sampleModel(Shape shape, int nodes)
{
    static Shape keptShape = shape;
    static int keptNodes = 0;
    static CEL_SharedPtr<TD_CelVq3d> kept;
    if (!kept || keptShape != shape || keptNodes != nodes) {
        kept.reset();
        const osg::NodeRefPtr root = sampleGraph(shape, nodes);
        kept = std::make_shared<TD_CelVq3d>(osg::NodePtr(root));
        keptShape = shape;
        keptNodes = nodes;
    }
    return kept;
}

std::vector<std::pair<std::string, Shape>> shapes()
{
    return {{"rig", Shape::Rig}, {"flat", Shape::Flat}, {"chain", Shape::Chain}};
}

void registerFor(const std::string& what, benchmark::BigO complexity,
                 const std::function<void(benchmark::State&, Shape)>& measure)
{
    for (const auto& [name, shape] : shapes()) {
        auto* registered = benchmark::RegisterBenchmark(
            (what + "/" + name).c_str(),
            [measure, shape = shape](benchmark::State& state) { measure(state, shape); });
        if (shape == Shape::Chain)
            registered->Arg(1000)->Arg(10000)->Arg(20000);
        else
            registered->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000);
        registered->Complexity(complexity);
    }
}
