// SPDX-License-Identifier: MIT
#pragma once

namespace Math {

/// A displacement in the plane, in the units of whoever uses it. A value; zero by default.
struct Vector2d
{
    double x = 0.0;
    double y = 0.0;

    friend bool operator==(const Vector2d&, const Vector2d&) = default;
    friend Vector2d operator+(const Vector2d& a, const Vector2d& b)
    {
        return {a.x + b.x, a.y + b.y};
    }
    friend Vector2d operator-(const Vector2d& a, const Vector2d& b)
    {
        return {a.x - b.x, a.y - b.y};
    }
    friend Vector2d operator*(double factor, const Vector2d& v)
    {
        return {factor * v.x, factor * v.y};
    }
};

} // namespace Math
