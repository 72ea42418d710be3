// SPDX-License-Identifier: MIT
#pragma once

#include "host/geometry/Point2d.h"

namespace Math {

/// An axis-aligned rectangle given by its four sides; y grows downwards. Nothing keeps the sides
/// in order: a rectangle whose right lies left of its left has a negative width.
struct Rect2d
{
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
    Point2d center() const { return {(left + right) * 0.5, (top + bottom) * 0.5}; }

    friend bool operator==(const Rect2d&, const Rect2d&) = default;
};

} // namespace Math
