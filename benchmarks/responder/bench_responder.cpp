// SPDX-License-Identifier: MIT

#include "benchmarks/BenchmarkProgram.h"
#include "benchmarks/SampleGraph.h"
#include "host/actions/AC_ActionInfo.h"
#include "host/commands/CO_CommandManager.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"
#include "responder/GT_Graph3DResponder.h"

#include <QMetaMethod>
#include <QUndoStack>
#include <limits>
#include <memory>

namespace {

using benchmark::State;

constexpr int lastFrame = std::numeric_limits<int>::max();

int nodesOf(const State& state)
{
    return static_cast<int>(state.range(0));
}

/// A session with one selected model and the responder, without any view.
class Stage
{
public:
    explicit Stage(Shape shape, int nodes)
        : _root(sampleGraph(shape, nodes))
        , _responder(nullptr, nullptr)
    {
        TUScene& scene = _session.openScene(QStringLiteral("bench"));
        auto element = std::make_unique<MO_ElementModule>(QStringLiteral("model"));
        _element = element.get();
        element->exposeModel(1, lastFrame, std::make_shared<TD_CelVq3d>(osg::NodePtr(_root)));
        context().selection()->add(scene.rootGroup()->insertNode(std::move(element)));
        context().changeManager()->notify();
    }

    SC_SessionContext& context() { return _session.context(); }
    QUndoStack& history() { return *context().commandManager()->history(); }

    /// The ids of an element count up from 1; returns how many there were to select.
    int subSelect(int count)
    {
        SLB_NodeInterface& selected = *_element->selInterface();
        selected.clearSubSelection();
        for (int id = 1; id <= count; ++id)
            selected.subSelect(id, true);
        context().changeManager()->notify();
        return static_cast<int>(selected.subSelectedIds().size());
    }
    /// Ids without a subnode are none.
    void subSelectOnly(int id) { _element->selInterface()->subSelect(id, false); }

    void perform(const char* slot) { send(slot, AC_ActionInfo::ePerform); }
    /// Asks every validator once, as before a menu opens.
    void validateAll()
    {
        const QMetaObject& meta = GT_Graph3DResponder::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QByteArray name = meta.method(i).name();
            if (name.endsWith("Validate"))
                send(name.chopped(8), AC_ActionInfo::eValidate);
        }
    }

private:
    void send(const QByteArray& slot, AC_ActionInfo::ePurpose purpose)
    {
        AC_ActionInfo info(slot, purpose);
        benchmark::DoNotOptimize(_responder.perform(&info));
    }

    HostSession _session;
    osg::NodeRefPtr _root;
    MO_ElementModule* _element = nullptr;
    GT_Graph3DResponder _responder;
};

/// An action over that many sub-selected subnodes, as one undo step, and its undo.
void switchMany(State& state, const char* slot)
{
    // A third of the nodes of this shape are subnodes.
    Stage stage(Shape::Rig, nodesOf(state) * 3);
    state.counters["subnodes"] = stage.subSelect(nodesOf(state));
    for (auto _ : state) {
        stage.perform(slot);
        stage.history().undo();
    }
    state.SetComplexityN(nodesOf(state));
}

void walk(State& state, Shape shape, const char* slot)
{
    Stage stage(shape, nodesOf(state));
    stage.subSelect(1);
    for (auto _ : state) {
        // Always from the middle; the one at the top has no relatives.
        stage.subSelectOnly(nodesOf(state) / 2);
        stage.perform(slot);
    }
    state.SetComplexityN(nodesOf(state));
}

void validateAll(State& state, Shape shape)
{
    Stage stage(shape, nodesOf(state));
    stage.subSelect(1);
    stage.subSelectOnly(nodesOf(state) / 4);
    for (auto _ : state)
        stage.validateAll();
    state.SetComplexityN(nodesOf(state));
}

void registerAll()
{
    const auto add = [](const char* name, benchmark::BigO complexity, const auto& measure) {
        benchmark::RegisterBenchmark(name, measure)
            ->Arg(1000)
            ->Arg(10000)
            ->Arg(100000)
            ->Complexity(complexity)
            ->Unit(benchmark::kMicrosecond);
    };
    add("enable_10000", benchmark::oN,
        [](State& state) { switchMany(state, "onActionDisableSubnode"); });
    add("hide_shape_10000", benchmark::oN,
        [](State& state) { switchMany(state, "onActionHideSubnodeShape"); });
    add("next_sibling/flat", benchmark::oN,
        [](State& state) { walk(state, Shape::Flat, "onActionSelectNextSibling"); });
    add("parent/chain", benchmark::oN,
        [](State& state) { walk(state, Shape::Chain, "onActionSelectParent"); });
    add("validate_all/rig", benchmark::oN, [](State& state) { validateAll(state, Shape::Rig); });
    add("validate_all/flat", benchmark::oN, [](State& state) { validateAll(state, Shape::Flat); });
    add("validate_all/chain", benchmark::oN,
        [](State& state) { validateAll(state, Shape::Chain); });
}

std::vector<RatioReporter::Aim> aims()
{
    constexpr double second = 1e9;
    constexpr double fiveMilliseconds = 5e6;
    return {timeAim("enable_10000/10000", "a second", second),
            timeAim("hide_shape_10000/10000", "a second", second),
            timeAim("validate_all/rig/100000", "5 ms", fiveMilliseconds),
            timeAim("validate_all/flat/100000", "5 ms", fiveMilliseconds),
            timeAim("validate_all/chain/100000", "5 ms", fiveMilliseconds)};
}

} // namespace

int main(int argc, char** argv)
{
    return runBenchmarks(argc, argv, registerAll, aims());
}
