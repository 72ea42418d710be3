// SPDX-License-Identifier: MIT

#include "graphview/GV_FixedCanvas.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPalette>
#include <QScrollBar>

namespace {

/// Half the side of the scene rectangle: so large that no pan reaches its end.
constexpr qreal sceneReach = 1e9;

} // namespace

void GV_FixedCanvas::prepare(QGraphicsView& view, QGraphicsScene& scene)
{
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setAlignment(Qt::Alignment());
    view.setTransformationAnchor(QGraphicsView::NoAnchor);
    // The pen that the painter comes with draws outlines, which stay black on a dark desktop, too.
    QPalette palette = view.viewport()->palette();
    palette.setColor(view.viewport()->foregroundRole(), Qt::black);
    view.viewport()->setPalette(palette);
    // An index costs more than it saves with two items, one of which is everywhere.
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    view.setScene(&scene);
    scene.setSceneRect(-sceneReach, -sceneReach, 2 * sceneReach, 2 * sceneReach);
}

void GV_FixedCanvas::setTransform(QGraphicsView& view, const QTransform& transform)
{
    view.setTransform(transform);
    // A position of the canvas' own would be added to the translation.
    view.horizontalScrollBar()->setValue(0);
    view.verticalScrollBar()->setValue(0);
}
