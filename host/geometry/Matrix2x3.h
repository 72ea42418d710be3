// SPDX-License-Identifier: MIT
#pragma once

#include "host/geometry/Point2d.h"

namespace Math {

/// An affine map of the plane: x' = a x + c y + tx, y' = b x + d y + ty. The identity by default.
struct Matrix2x3
{
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double d = 1.0;
    double tx = 0.0;
    double ty = 0.0;

    static Matrix2x3 translation(const Vector2d& v) { return {1.0, 0.0, 0.0, 1.0, v.x, v.y}; }
    static Matrix2x3 scale(double factor) { return {factor, 0.0, 0.0, factor, 0.0, 0.0}; }

    Point2d operator*(const Point2d& p) const
    {
        return {a * p.x + c * p.y + tx, b * p.x + d * p.y + ty};
    }

    /// The map that applies the right operand first.
    Matrix2x3 operator*(const Matrix2x3& m) const
    {
        return {a * m.a + c * m.b, b * m.a + d * m.b,        a * m.c + c * m.d,
                b * m.c + d * m.d, a * m.tx + c * m.ty + tx, b * m.tx + d * m.ty + ty};
    }

    friend bool operator==(const Matrix2x3&, const Matrix2x3&) = default;
};

} // namespace Math
