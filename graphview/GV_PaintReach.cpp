// SPDX-License-Identifier: MIT

#include "graphview/GV_PaintReach.h"

#include <QPaintEngine>
#include <QPainter>

namespace {

/// How far a stroke of a one-pixel pen, with its caps and with antialiasing, may reach beyond its
/// line, in device pixels; more than enough.
constexpr qreal strokeReach = 4.0;

} // namespace

std::optional<QRectF> GV_paintReach(const QPainter& painter)
{
    const QPaintEngine* engine = painter.paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster)
        return std::nullopt;
    // The engine's own device is what the pixels end up in, also where a widget is painted into a
    // buffer that it shares with others.
    const QPaintDevice* pixels = engine->paintDevice();
    const QTransform toPixels = painter.deviceTransform();
    if (!pixels || !toPixels.isAffine() || !toPixels.isInvertible())
        return std::nullopt;
    const QRectF everyPixel(0, 0, pixels->width(), pixels->height());
    return toPixels.inverted().mapRect(
        everyPixel.adjusted(-strokeReach, -strokeReach, strokeReach, strokeReach));
}
