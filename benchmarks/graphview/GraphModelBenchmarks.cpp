// SPDX-License-Identifier: MIT

#include "benchmarks/graphview/GraphBenchmarks.h"
#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_LayoutGrid.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"

#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <malloc.h>
#include <memory>
#include <random>

namespace {

using benchmark::State;

/// An element with its model, and the graph UI model that shows it.
struct ShownModel
{
    ShownModel(Shape shape, int nodes)
        : cel(sampleModel(shape, nodes))
    {
    }

    bool show(bool extended)
    {
        return uiInfo.updateGraphUiInfo({{&element, cel}}, &element, extended);
    }

    CEL_SharedPtr<TD_CelVq3d> cel;
    MO_ElementModule element{QStringLiteral("model")};
    GV_GraphUiInfo uiInfo;
};

std::size_t bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// Names of the nodes of the shown tree.
class NameCollector : public GV_VisibleTreeVisitor
{
public:
    using GV_VisibleTreeVisitor::visit;
    void visit(GV_UiNode* node) override { names.push_back(node->name()); }
    std::vector<QString> names;
};

void walk(State& state, Shape shape)
{
    const auto nodes = static_cast<int>(state.range(0));
    const CEL_SharedPtr<TD_CelVq3d> cel = sampleModel(shape, nodes);
    std::vector<osg::NodePtr> pending;
    for (auto _ : state) {
        std::size_t length = 0;
        pending.assign(1, cel->rootNodePtr());
        while (!pending.empty()) {
            osg::NodePtr node = pending.back();
            pending.pop_back();
            if (const char* name = osg::getName(node))
                length += std::char_traits<char>::length(name);
            for (osg::UInt32 i = node->getNChildren(); i > 0; --i)
                pending.push_back(node->getChild(i - 1));
        }
        benchmark::DoNotOptimize(length);
    }
    state.SetComplexityN(nodes);
}

void build(State& state, Shape shape, bool extended)
{
    const auto nodes = static_cast<int>(state.range(0));
    ShownModel model(shape, nodes);
    for (auto _ : state) {
        model.show(extended);
        state.PauseTiming();
        model.uiInfo.clearUiNodeGraph();
        state.ResumeTiming();
    }
    state.SetComplexityN(nodes);

    const std::size_t before = bytesInUse();
    model.show(extended);
    // Look-ups by name keep an index; it counts, too.
    model.uiInfo.setFirstNodeWithNameSelected(QStringLiteral("no such name"));
    state.counters["bytes/node"] = static_cast<double>(bytesInUse() - before) / nodes;
}

void layout(State& state, Shape shape)
{
    const auto nodes = static_cast<int>(state.range(0));
    ShownModel model(shape, nodes);
    model.show(true);
    for (auto _ : state)
        model.uiInfo.calculateGeometricData();
    state.SetComplexityN(nodes);
}

void hitTest(State& state, Shape shape)
{
    const auto nodes = static_cast<int>(state.range(0));
    ShownModel model(shape, nodes);
    model.show(true);
    const Math::Box2di extent = model.uiInfo.boundingRect();
    std::mt19937 random(1U);
    std::uniform_real_distribution<double> x(0.0, extent.x2());
    std::uniform_real_distribution<double> y(0.0, extent.y2());
    // Few enough points to stay in the cache: it is the search that is measured.
    std::vector<Math::Vector2d> points(1024);
    for (Math::Vector2d& point : points)
        point = {x(random), y(random)};
    std::size_t next = 0;
    for (auto _ : state) {
        int ix = 0;
        GV_UiNode* node = nullptr;
        GV_UiNode::eSelectionType type = GV_UiNode::eEmptySelection;
        benchmark::DoNotOptimize(
            model.uiInfo.getNodeSelectionInfo(points[next++ % points.size()], ix, node, type));
    }
    state.SetComplexityN(nodes);
}

void selectByName(State& state, Shape shape)
{
    const auto nodes = static_cast<int>(state.range(0));
    ShownModel model(shape, nodes);
    model.show(true);
    NameCollector collector;
    model.uiInfo.accept(collector);
    std::mt19937 random(1U);
    std::vector<QString> names(1024);
    for (QString& name : names)
        name = collector.names[1 + random() % (collector.names.size() - 1)];
    // The first look-up after a build makes the index; name_index measures that.
    model.uiInfo.setFirstNodeWithNameSelected(names.front());
    std::size_t next = 0;
    for (auto _ : state) {
        model.uiInfo.setFirstNodeWithNameSelected(names[next++ % names.size()]);
        model.uiInfo.clearSelection(false);
    }
    state.SetComplexityN(nodes);
}

void nameIndex(State& state, Shape shape)
{
    const auto nodes = static_cast<int>(state.range(0));
    ShownModel model(shape, nodes);
    model.show(true);
    GV_UiNode* root = model.uiInfo.rootUiNode();
    for (auto _ : state) {
        // Any change of a name makes the index out of date.
        root->setNames(root->name(), root->displayName());
        model.uiInfo.setFirstNodeWithNameSelected(QStringLiteral("no such name"));
    }
    state.SetComplexityN(nodes);
}

} // namespace

void registerGraphModelBenchmarks()
{
    registerFor("walk", benchmark::oN, walk);
    registerFor("build_extended", benchmark::oN,
                [](State& state, Shape shape) { build(state, shape, true); });
    registerFor("build_filtered", benchmark::oN,
                [](State& state, Shape shape) { build(state, shape, false); });
    registerFor("layout", benchmark::oN, layout);
    registerFor("hit_test", benchmark::o1, hitTest);
    registerFor("select_by_name", benchmark::o1, selectByName);
    registerFor("name_index", benchmark::oN, nameIndex);
}

Aims graphModelAims()
{
    Aims all;
    for (const int nodes : {1000, 10000, 100000, 1000000}) {
        const std::string size = std::to_string(nodes);
        all.push_back({"build_extended/rig/" + size + " to 3 walk + 400 ns a node",
                       "build_extended/rig/" + size,
                       {"walk/rig/" + size},
                       [nodes](const std::vector<double>& times) {
                           return 3.0 * times.at(0) + 400.0 * nodes;
                       },
                       1.0});
    }
    all.push_back(ratioAim("hit_test/rig/1000000", "hit_test/rig/1000", 2.0));
    all.push_back(ratioAim("select_by_name/rig/1000000", "select_by_name/rig/1000", 2.0));
    return all;
}
