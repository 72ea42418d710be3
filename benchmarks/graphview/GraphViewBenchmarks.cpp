// SPDX-License-Identifier: MIT

#include "benchmarks/graphview/GraphBenchmarks.h"
#include "benchmarks/graphview/ShownView.h"
#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXNavigatorQt.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_LayoutGrid.h"
#include "host/models/TD_CelVq3d.h"

#include <OpenSG/OSGRefPtr.h>
#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QWheelEvent>
#include <memory>

namespace {

using benchmark::State;

void sendMouse(QWidget& widget, QEvent::Type type, const QPointF& position, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void press(QWidget& widget, const QPointF& position)
{
    sendMouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

void release(QWidget& widget, const QPointF& position)
{
    sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

void turnWheel(QWidget& widget, const QPointF& position, int delta)
{
    QWheelEvent event(position, widget.mapToGlobal(position), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

int nodesOf(const State& state)
{
    return static_cast<int>(state.range(0));
}

void paintFrames(State& state, ShownView& shown)
{
    // The same path as on screen, into a buffer of the size of the view.
    QImage buffer(shown.view().viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        shown.view().viewport()->render(&buffer);
}

void frameZoom1(State& state, Shape shape, bool deep)
{
    ShownView shown(sampleModel(shape, nodesOf(state)));
    if (deep)
        shown.scrollToRow(std::min(nodesOf(state) / 2, 50000));
    paintFrames(state, shown);
    state.SetComplexityN(nodesOf(state));
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

/// Where key nodes' boxes are in the view, in pixels of the viewport.
std::vector<QPointF> keyNodePositions(ShownView& shown)
{
    std::vector<QPointF> positions;
    const std::vector<GV_UiNode*>& rows = shown.view().controller()->uiInfo()->shownRows().nodes();
    for (std::size_t row = 1; row < rows.size(); ++row) {
        using namespace GV_LayoutGrid;
        const Math::Point2d point = shown.view().modelToScreen(
            {rows[row]->column() * indent + 10.0, rows[row]->row() * rowPitch + 10.0});
        if (point.y >= shown.view().height() || point.x >= shown.view().width())
            break;
        if (rows[row]->isEditable())
            positions.emplace_back(point.x, point.y);
    }
    return positions;
}

/// From the press on a box to both pictures painted.
void click(State& state, Shape shape)
{
    ShownView shown(sampleModel(shape, nodesOf(state)));
    QWidget& viewport = *shown.view().viewport();
    const std::vector<QPointF> positions = keyNodePositions(shown);
    if (positions.empty())
        return state.SkipWithError("no key node in view");
    // The first click makes the index of names, which others then find there.
    press(viewport, positions[0]);
    release(viewport, positions[0]);
    std::size_t next = 0;
    for (auto _ : state) {
        const QPointF position = positions[++next % positions.size()];
        press(viewport, position);
        ShownView::settle();
        release(viewport, position);
    }
    state.SetComplexityN(nodesOf(state));
}

/// From the release of a marquee over some 200 boxes to both pictures painted.
void marquee200(State& state, Shape shape)
{
    ShownView shown(sampleModel(shape, nodesOf(state)));
    QWidget& viewport = *shown.view().viewport();
    // At an eighth, 800 pixels are 188 rows.
    constexpr int steps = 24;
    for (int i = 0; i < steps; ++i)
        turnWheel(viewport, QPointF(2, 2), -120);
    ShownView::settle();
    const QPointF from(990, 790);
    const QPointF to(0, 0);
    for (auto _ : state) {
        state.PauseTiming();
        press(viewport, from);
        sendMouse(viewport, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        ShownView::settle();
        state.ResumeTiming();
        release(viewport, to);
        ShownView::settle();
    }
    state.SetComplexityN(nodesOf(state));
}

void selectAll(State& state, Shape shape)
{
    ShownView shown(sampleModel(shape, nodesOf(state)));
    for (auto _ : state) {
        shown.view().selectAll();
        ShownView::settle();
    }
    state.SetComplexityN(nodesOf(state));
}

void collapseAll(State& state, Shape shape)
{
    ShownView shown(sampleModel(shape, nodesOf(state)));
    for (auto _ : state) {
        shown.view().onActionCollapseAllNodes();
        ShownView::settle();
        state.PauseTiming();
        shown.view().onActionExpandAllNodes();
        ShownView::settle();
        state.ResumeTiming();
    }
    state.SetComplexityN(nodesOf(state));
}

void wheelFrame(State& state, Shape shape)
{
    ShownView shown(sampleModel(shape, nodesOf(state)));
    int direction = 1;
    for (auto _ : state) {
        turnWheel(*shown.view().viewport(), QPointF(300, 300), direction * 120);
        direction = -direction;
        ShownView::settle();
    }
    state.SetComplexityN(nodesOf(state));
}

/// Of a pan of the view, what its navigator costs.
void navigatorFrame(State& state, Shape shape)
{
    ShownView shown(sampleModel(shape, nodesOf(state)));
    QWidget& overview = *shown.view().navigator()->viewport();
    shown.scrollToRow(nodesOf(state) / 2);
    ShownView::settle();
    QImage buffer(overview.size(), QImage::Format_ARGB32_Premultiplied);
    double distance = GV_LayoutGrid::rowPitch;
    for (auto _ : state) {
        shown.view().handleNavigatorPan({0.0, distance});
        overview.render(&buffer);
        distance = -distance;
    }
    state.SetComplexityN(nodesOf(state));
}

/// The navigator after a branch was folded.
void navigatorRedraw(State& state, Shape shape)
{
    ShownView shown(sampleModel(shape, nodesOf(state)));
    GV_GraphXViewQt& view = shown.view();
    QImage buffer(view.navigator()->viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    GV_UiNode* last = view.controller()->uiInfo()->shownRows().nodes().back()->parent();
    for (auto _ : state) {
        state.PauseTiming();
        view.prepareGeometryChange();
        last->setCollapsed(!last->isCollapsed());
        view.controller()->uiInfo()->calculateGeometricData();
        view.updateNavigatorMatrix();
        state.ResumeTiming();
        view.navigator()->viewport()->render(&buffer);
    }
    state.SetComplexityN(nodesOf(state));
}

} // namespace

void registerGraphViewBenchmarks()
{
    registerFor("frame_zoom1", benchmark::o1,
                [](State& state, Shape shape) { frameZoom1(state, shape, false); });
    registerFor("frame_zoom1_deep", benchmark::o1,
                [](State& state, Shape shape) { frameZoom1(state, shape, true); });
    for (const auto& [name, shape] : shapes()) {
        benchmark::RegisterBenchmark(
            ("frame_visible_only/" + name).c_str(),
            [shape = shape](State& state) { frameVisibleOnly(state, shape); });
    }
    registerFor("click", benchmark::o1, click);
    registerFor("marquee_200", benchmark::o1, marquee200);
    registerFor("select_all", benchmark::oN, selectAll);
    registerFor("collapse_all", benchmark::oN, collapseAll);
    registerFor("wheel_frame", benchmark::o1, wheelFrame);
    registerFor("navigator_frame", benchmark::o1, navigatorFrame);
    registerFor("navigator_redraw", benchmark::oN, navigatorRedraw);
}

Aims graphViewAims()
{
    Aims all;
    for (const std::string what : {"frame_zoom1", "frame_zoom1_deep"}) {
        all.push_back(ratioAim(what + "/rig/100000", what + "/rig/1000", 1.2));
        all.push_back(ratioAim(what + "/rig/100000", "frame_visible_only/rig", 1.5));
    }
    for (const std::string what : {"click", "wheel_frame", "navigator_frame"})
        all.push_back(ratioAim(what + "/rig/100000", what + "/rig/1000", 1.2));
    for (const std::string what : {"click", "wheel_frame"})
        all.push_back(ratioAim(what + "/rig/100000", "items_frame/rig/100000", 0.2));
    all.push_back(
        ratioAim("navigator_frame/rig/100000", "items_navigator_frame/rig/100000", 0.001));
    all.push_back(ratioAim("marquee_200/rig/100000", "marquee_200/rig/1000", 1.5));
    all.push_back({"select_all/rig/100000 to a second",
                   "select_all/rig/100000",
                   {},
                   [](const std::vector<double>&) { return 1e9; },
                   1.0});
    return all;
}
