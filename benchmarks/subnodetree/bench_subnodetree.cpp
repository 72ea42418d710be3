// SPDX-License-Identifier: MIT

#include "benchmarks/BenchmarkProgram.h"
#include "benchmarks/SampleGraph.h"
#include "benchmarks/subnodetree/ShownTree.h"
#include "benchmarks/subnodetree/StandardTree.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/models/TD_CelVq3d.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/TUSceneChangeManager.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTreeView>
#include <malloc.h>

namespace {

using benchmark::State;

/// Keeps some 1 % of the rows of the samples, some 25 %, and all of them.
const QString keepsOne = QStringLiteral("12");
const QString keepsQuarter = QStringLiteral("l_");

int nodesOf(const State& state)
{
    return static_cast<int>(state.range(0));
}

/// The model of a benchmark, kept from one to the next as long as they ask for the same.
CEL_SharedPtr<TD_CelVq3d> sampleModel(Shape shape, int nodes)
{
    static std::pair<Shape, int> keptFor;
    static CEL_SharedPtr<TD_CelVq3d> kept;
    if (!kept || keptFor != std::pair(shape, nodes)) {
        kept.reset();
        const osg::NodeRefPtr root = sampleGraph(shape, nodes);
        kept = std::make_shared<TD_CelVq3d>(osg::NodePtr(root));
        keptFor = {shape, nodes};
    }
    return kept;
}

std::size_t bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void rebuild(State& state, Shape shape)
{
    const CEL_SharedPtr<TD_CelVq3d> cel = sampleModel(shape, nodesOf(state));
    SGV_GraphModel model;
    model.setDebugMode(true);
    for (auto _ : state)
        model.setRootNode(cel->rootNodePtr());
    state.SetComplexityN(nodesOf(state));

    model.clear();
    const std::size_t before = bytesInUse();
    model.setRootNode(cel->rootNodePtr());
    // Look-ups by key keep an index; it counts, too.
    model.findIndex(AT_ModelNodeKey(QStringLiteral("no such subnode")));
    const auto rows = static_cast<double>(model.items().size());
    state.counters["rows"] = rows;
    state.counters["bytes/row"] = static_cast<double>(bytesInUse() - before) / rows;
}

/// A key press in the filter field, until the tree has settled.
void filterKey(State& state, Shape shape, const QString& text)
{
    ShownTree tree(sampleModel(shape, nodesOf(state)));
    QLineEdit& field = *tree.view().filterField();
    for (auto _ : state) {
        state.PauseTiming();
        field.setText(text.isEmpty() ? keepsOne : QString());
        ShownTree::settle();
        state.ResumeTiming();
        field.setText(text);
        ShownTree::settle();
    }
    state.SetComplexityN(nodesOf(state));
}

void filterKeyStandard(State& state, Shape shape, const QString& text)
{
    ShownTree tree(sampleModel(shape, nodesOf(state)));
    StandardTree standard(*tree.view().model());
    ShownTree::settle();
    for (auto _ : state) {
        state.PauseTiming();
        standard.setFilter(text.isEmpty() ? keepsOne : QString());
        ShownTree::settle();
        state.ResumeTiming();
        standard.setFilter(text);
        ShownTree::settle();
    }
    state.SetComplexityN(nodesOf(state));
}

/// What the view itself needs to expand and lay out the rows that remain: the floor of a key press.
void expandAll(State& state, Shape shape, const QString& text)
{
    ShownTree tree(sampleModel(shape, nodesOf(state)));
    SubNodeFilterProxyModel proxy;
    proxy.setSourceModel(tree.view().model());
    proxy.setFilterFixedString(text);
    for (auto _ : state) {
        state.PauseTiming();
        auto view = std::make_unique<QTreeView>();
        view->setUniformRowHeights(true);
        view->setHeaderHidden(true);
        view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        view->header()->setStretchLastSection(false);
        view->header()->setResizeContentsPrecision(
            tree.view().treeView()->header()->resizeContentsPrecision());
        view->resize(300, 700);
        view->setModel(&proxy);
        view->show();
        ShownTree::settle();
        state.ResumeTiming();
        view->expandAll();
        ShownTree::settle();
        state.PauseTiming();
        view.reset();
        state.ResumeTiming();
    }
    state.SetComplexityN(nodesOf(state));
}

/// A thousand sub-selected ids, from the host's notice until they show.
void sync1000(State& state, Shape shape)
{
    ShownTree tree(sampleModel(shape, nodesOf(state)));
    for (auto _ : state) {
        state.PauseTiming();
        tree.clearSubSelection();
        tree.view().onSubSelectionChanged();
        tree.subSelect(1000);
        ShownTree::settle();
        state.ResumeTiming();
        tree.view().onSubSelectionChanged();
        ShownTree::settle();
    }
    state.SetComplexityN(nodesOf(state));
}

void visibilityApply(State& state, Shape shape)
{
    ShownTree tree(sampleModel(shape, nodesOf(state)));
    SGV_GraphModel::VisibilityData data;
    for (const SGV_GraphItem* item : tree.view().model()->items()) {
        if (item->order() % 100 == 0)
            data[AT_ModelNodeKey(item->name())] = SGV_GraphItem::Disabled;
    }
    for (auto _ : state)
        tree.view().model()->setVisibilityData(data);
    state.SetComplexityN(nodesOf(state));
}

void connectionsApply(State& state, Shape shape)
{
    ShownTree tree(sampleModel(shape, nodesOf(state)));
    SGV_GraphModel::ConnectionsData data;
    for (const SGV_GraphItem* item : tree.view().model()->items()) {
        if (item->order() % 100 == 0)
            data[AT_ModelNodeKey(item->name())] = QStringLiteral("output");
    }
    for (auto _ : state)
        tree.view().model()->setConnectionsData(data);
    state.SetComplexityN(nodesOf(state));
}

/// A click in the tree until both views are repainted.
void clickBoth(State& state, Shape shape)
{
    ShownTree tree(sampleModel(shape, nodesOf(state)));
    SC_SessionContext& context = tree.session().context();
    GV_GraphXViewQt graph(context.actionManager(), nullptr, &context);
    graph.init(new GV_GraphXViewCtrl(&graph, &context));
    graph.resize(1000, 800);
    graph.show();
    ShownTree::settle();
    QWidget& viewport = *tree.view().treeView()->viewport();
    const auto send = [&viewport](QEvent::Type type, const QPointF& position,
                                  Qt::MouseButtons buttons) {
        QMouseEvent event(type, position, viewport.mapToGlobal(position), Qt::LeftButton, buttons,
                          Qt::NoModifier);
        QApplication::sendEvent(&viewport, &event);
    };
    int row = 0;
    const auto clickNextRow = [&] {
        const QPointF position(120, 30 + 18 * (row = (row + 1) % 3));
        send(QEvent::MouseButtonPress, position, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, position, Qt::NoButton);
        ShownTree::settle();
    };
    // The first click makes the indexes of names and keys, which others then find there.
    clickNextRow();
    for (auto _ : state)
        clickNextRow();
    state.SetComplexityN(nodesOf(state));
}

void registerFor(const std::string& what, benchmark::BigO complexity, int mostNodes,
                 const std::function<void(State&, Shape)>& measure)
{
    const std::pair<const char*, Shape> shapes[] = {
        {"rig", Shape::Rig}, {"flat", Shape::Flat}, {"chain", Shape::Chain}};
    for (const auto& [name, shape] : shapes) {
        auto* registered = benchmark::RegisterBenchmark(
            (what + "/" + name).c_str(),
            [measure, shape = shape](State& state) { measure(state, shape); });
        // Qt's tree view recurses into every level, and does not bear a chain much longer.
        const std::vector<int> sizes = shape == Shape::Chain
                                           ? std::vector<int>{1000, 5000}
                                           : std::vector<int>{1000, 10000, 100000};
        for (const int size : sizes) {
            if (size <= mostNodes)
                registered->Arg(size);
        }
        registered->Complexity(complexity)->Unit(benchmark::kMillisecond);
    }
}

void registerAll()
{
    constexpr int all = 1000000;
    registerFor("rebuild", benchmark::oN, all, rebuild);
    const std::pair<std::string, QString> filters[] = {
        {"_1", keepsOne}, {"_25", keepsQuarter}, {"_clear", QString()}};
    for (const auto& [name, text] : filters) {
        registerFor("filter_key" + name, benchmark::oN, all,
                    [text = text](State& state, Shape shape) { filterKey(state, shape, text); });
        registerFor("expand_all" + name, benchmark::oN, all,
                    [text = text](State& state, Shape shape) { expandAll(state, shape, text); });
        registerFor(
            "filter_key_standard" + name, benchmark::oN, 1000,
            [text = text](State& state, Shape shape) { filterKeyStandard(state, shape, text); });
    }
    registerFor("sync_1000", benchmark::oN, all, sync1000);
    registerFor("visibility_apply", benchmark::oN, all, visibilityApply);
    registerFor("connections_apply", benchmark::o1, all, connectionsApply);
    registerFor("click_both", benchmark::o1, all, clickBoth);
}

std::vector<RatioReporter::Aim> aims()
{
    std::vector<RatioReporter::Aim> all;
    for (const std::string name : {"_1", "_25", "_clear"}) {
        all.push_back(ratioAim("filter_key" + name + "/rig/100000",
                               "expand_all" + name + "/rig/100000", 1.5));
        all.push_back(ratioAim("filter_key" + name + "/rig/1000",
                               "filter_key_standard" + name + "/rig/1000", 0.02));
    }
    constexpr double tenthOfASecond = 1e8;
    all.push_back(timeAim("sync_1000/rig/100000", "100 ms", tenthOfASecond));
    all.push_back(ratioAim("click_both/rig/100000", "click_both/rig/1000", 1.5));
    return all;
}

} // namespace

int main(int argc, char** argv)
{
    const auto registerThem = [] {
        PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), false);
        registerAll();
    };
    return runBenchmarks(argc, argv, registerThem, aims());
}
