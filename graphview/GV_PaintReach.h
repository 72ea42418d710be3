// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <optional>

class QPainter;

/// The part of the painter's plane from which strokes of its default pens can reach the picture.
/// Nothing when that is not known: a device that records what is painted, for one, keeps
/// everything.
std::optional<QRectF> GV_paintReach(const QPainter& painter);
