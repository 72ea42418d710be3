// SPDX-License-Identifier: MIT

#include "benchmarks/graphview/GraphBenchmarks.h"
#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_LayoutGrid.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPainter>
#include <QScrollBar>
#include <memory>

namespace {

using benchmark::State;
using namespace GV_LayoutGrid;

/// A box with its name, and the line to its parent.
class NodeItem : public QGraphicsItem
{
public:
    explicit NodeItem(const GV_UiNode* node)
        : _name(node->label())
        , _toParent(node->parent() ? (node->row() - node->parent()->row()) * rowPitch : 0)
    {
        setPos(node->column() * indent, node->row() * rowPitch);
    }

    QRectF boundingRect() const override
    {
        return QRectF(-indent, -_toParent, boxWidth + indent, _toParent + boxHeight);
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override
    {
        painter->setPen(QPen(Qt::white, 0));
        if (_toParent > 0) {
            painter->drawLine(QPointF(-indent / 2.0, boxHeight - _toParent),
                              QPointF(-indent / 2.0, boxHeight / 2.0));
            painter->drawLine(QPointF(-indent / 2.0, boxHeight / 2.0),
                              QPointF(0.0, boxHeight / 2.0));
        }
        painter->setPen(QPen(Qt::black, 0));
        painter->setBrush(QColor(69, 90, 163));
        painter->drawRect(0, 0, boxWidth, boxHeight);
        constexpr double textLevel = 0.125;
        if (painter->worldTransform().m11() > textLevel)
            painter->drawText(QRectF(6, 3, labelWidth, 18), Qt::AlignVCenter, _name);
    }

private:
    QString _name;
    int _toParent;
};

/// The scene of items, kept to the end of the program: taking it apart takes longer than all the
/// rest.
QGraphicsScene& itemScene(Shape shape, int nodes)
{
    static std::map<std::pair<Shape, int>, QGraphicsScene*> scenes;
    QGraphicsScene*& scene = scenes[{shape, nodes}];
    if (!scene) {
        MO_ElementModule element(QStringLiteral("model"));
        GV_GraphUiInfo uiInfo;
        uiInfo.updateGraphUiInfo({{&element, sampleModel(shape, nodes)}}, &element, true);
        uiInfo.calculateGeometricData();
        scene = new QGraphicsScene;
        for (const GV_UiNode* node : uiInfo.shownRows().nodes())
            scene->addItem(new NodeItem(node));
    }
    return *scene;
}

void paintItems(State& state, QGraphicsView& view)
{
    QImage buffer(view.viewport()->size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        view.viewport()->render(&buffer);
}

void itemsFrame(State& state, Shape shape)
{
    QGraphicsView view(&itemScene(shape, static_cast<int>(state.range(0))));
    view.resize(1000, 800);
    view.show();
    QApplication::processEvents();
    // A frame of a change: what is in view has to be looked up and painted anew.
    QScrollBar* bar = view.verticalScrollBar();
    bar->setValue((bar->minimum() + bar->maximum()) / 2);
    paintItems(state, view);
}

void itemsNavigatorFrame(State& state, Shape shape)
{
    QGraphicsView view(&itemScene(shape, static_cast<int>(state.range(0))));
    view.resize(100, 100);
    view.show();
    view.fitInView(view.sceneRect(), Qt::KeepAspectRatio);
    QApplication::processEvents();
    paintItems(state, view);
}

} // namespace

void registerItemBenchmarks()
{
    // Only as far as it takes to compare: a million items would need 6 GB.
    using Measure = void (*)(State&, Shape);
    const std::pair<const char*, Measure> measurements[] = {
        {"items_frame/rig", itemsFrame}, {"items_navigator_frame/rig", itemsNavigatorFrame}};
    for (const auto& [what, measure] : measurements) {
        benchmark::RegisterBenchmark(
            what, [measure = measure](State& state) { measure(state, Shape::Rig); })
            ->Arg(1000)
            ->Arg(10000)
            ->Arg(100000);
    }
}
