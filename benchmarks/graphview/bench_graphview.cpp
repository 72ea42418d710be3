// SPDX-License-Identifier: MIT

#include "benchmarks/RatioReporter.h"
#include "benchmarks/SampleGraph.h"
#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_LayoutGrid.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStandardPaths>
#include <limits>
#include <malloc.h>
#include <memory>
#include <random>
#include <string>

namespace {

using benchmark::State;

constexpr int lastFrame = std::numeric_limits<int>::max();

/// The model of a benchmark, kept from one to the next as long as they ask for the same.
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

/// A graph view of 1000 by 800 pixels over one model.
class ShownView
{
public:
    explicit ShownView(const CEL_SharedPtr<TD_CelVq3d>& cel)
    {
        TUScene& scene = _session.openScene(QStringLiteral("bench"));
        auto element = std::make_unique<MO_ElementModule>(QStringLiteral("model"));
        element->exposeModel(1, lastFrame, cel);
        _session.context().selection()->add(scene.rootGroup()->insertNode(std::move(element)));
        _view = std::make_unique<GV_GraphXViewQt>(_session.context().actionManager(), nullptr,
                                                  &_session.context());
        _view->init(new GV_GraphXViewCtrl(_view.get(), &_session.context()));
        _view->controller()->uiInfo()->displayModeChanged(true);
        _view->resize(1000, 800);
        _view->show();
        QApplication::processEvents();
    }

    GV_GraphXViewQt& view() { return *_view; }

    /// Moves the row to the top of the view.
    void scrollToRow(int row)
    {
        _view->setTransform(QTransform::fromTranslate(2, 2 - row * GV_LayoutGrid::rowPitch));
    }

private:
    HostSession _session;
    std::unique_ptr<GV_GraphXViewQt> _view;
};

void paintFrames(State& state, ShownView& shown)
{
    // The same path as on screen, into a buffer of the size of the view.
    QImage buffer(shown.view().viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        shown.view().viewport()->render(&buffer);
}

void frameZoom1(State& state, Shape shape, bool deep)
{
    const auto nodes = static_cast<int>(state.range(0));
    ShownView shown(sampleModel(shape, nodes));
    if (deep)
        shown.scrollToRow(std::min(nodes / 2, 50000));
    paintFrames(state, shown);
    state.SetComplexityN(nodes);
}

void frameVisibleOnly(State& state, Shape shape)
{
    // Rows are the nodes in pre-order, below the row of the header.
    constexpr int rowsInView = 23;
    const CEL_SharedPtr<TD_CelVq3d> whole =
        sampleModel(shape, shape == Shape::Chain ? 20000 : 100000);
    const osg::NodeRefPtr visible = firstNodesOf(whole->rootNodePtr(), rowsInView);
    ShownView shown(std::make_shared<TD_CelVq3d>(osg::NodePtr(visible)));
    paintFrames(state, shown);
}

std::vector<std::pair<std::string, Shape>> shapes()
{
    return {{"rig", Shape::Rig}, {"flat", Shape::Flat}, {"chain", Shape::Chain}};
}

void registerFor(const std::string& what, benchmark::BigO complexity,
                 const std::function<void(State&, Shape)>& measure)
{
    for (const auto& [name, shape] : shapes()) {
        auto* registered = benchmark::RegisterBenchmark(
            (what + "/" + name).c_str(),
            [measure, shape = shape](State& state) { measure(state, shape); });
        if (shape == Shape::Chain)
            registered->Arg(1000)->Arg(10000)->Arg(20000);
        else
            registered->Arg(1000)->Arg(10000)->Arg(100000)->Arg(1000000);
        registered->Complexity(complexity);
    }
}

void registerAll()
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
    registerFor("frame_zoom1", benchmark::o1,
                [](State& state, Shape shape) { frameZoom1(state, shape, false); });
    registerFor("frame_zoom1_deep", benchmark::o1,
                [](State& state, Shape shape) { frameZoom1(state, shape, true); });
    for (const auto& [name, shape] : shapes()) {
        benchmark::RegisterBenchmark(
            ("frame_visible_only/" + name).c_str(),
            [shape = shape](State& state) { frameVisibleOnly(state, shape); });
    }
}

std::vector<RatioReporter::Aim> aims()
{
    std::vector<RatioReporter::Aim> all;
    const auto first = [](const std::vector<double>& times) { return times.at(0); };
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
    all.push_back({"hit_test/rig, 1000000 to 1000 nodes",
                   "hit_test/rig/1000000",
                   {"hit_test/rig/1000"},
                   first,
                   2.0});
    all.push_back({"select_by_name/rig, 1000000 to 1000 nodes",
                   "select_by_name/rig/1000000",
                   {"select_by_name/rig/1000"},
                   first,
                   2.0});
    for (const std::string what : {"frame_zoom1", "frame_zoom1_deep"}) {
        all.push_back({what + "/rig, 100000 to 1000 nodes",
                       what + "/rig/100000",
                       {what + "/rig/1000"},
                       first,
                       1.2});
        all.push_back({what + "/rig/100000 to the visible rows alone",
                       what + "/rig/100000",
                       {"frame_visible_only/rig"},
                       first,
                       1.5});
    }
    return all;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The user's own preferences must not decide what is measured.
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    osg::osgInit(argc, argv);
    registerAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RatioReporter reporter(aims());
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
