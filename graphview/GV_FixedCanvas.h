// SPDX-License-Identifier: MIT
#pragma once

class QGraphicsScene;
class QGraphicsView;
class QTransform;

/// What it takes to keep a graphics view from scrolling, centring or scaling by itself, so that the
/// transform that is set is exactly how its scene is mapped to its viewport.
namespace GV_FixedCanvas {

/// Gives the view the scene, which is not owned, and a plane so large that nothing is clamped.
void prepare(QGraphicsView& view, QGraphicsScene& scene);

void setTransform(QGraphicsView& view, const QTransform& transform);

} // namespace GV_FixedCanvas
