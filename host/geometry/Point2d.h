// SPDX-License-Identifier: MIT
#pragma once

#include "host/geometry/Vector2d.h"

namespace Math {

/// A place in the plane, in the units of whoever uses it. A value; the origin by default.
struct Point2d
{
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Point2d&, const Point2d&) = default;
    friend Point2d operator+(const Point2d& p, const Vector2d& v) { return {p.x + v.x, p.y + v.y}; }
    friend Point2d operator-(const Point2d& p, const Vector2d& v) { return {p.x - v.x, p.y - v.y}; }
    friend Vector2d operator-(const Point2d& a, const Point2d& b) { return {a.x - b.x, a.y - b.y}; }
};

} // namespace Math
