// SPDX-License-Identifier: MIT
#pragma once

#include "host/geometry/Rect2d.h"

#include <algorithm>

namespace Math {

/// The smallest axis-aligned box around what was put into it, from (x1, y1) to (x2, y2).
/// It starts out empty: an empty box holds nothing, and its coordinates read as zero.
template <class T>
class Box2
{
public:
    Box2() = default;
    Box2(T x1, T y1, T x2, T y2)
        : _x1(x1)
        , _y1(y1)
        , _x2(x2)
        , _y2(y2)
        , _empty(false)
    {
    }

    bool isEmpty() const { return _empty; }
    T x1() const { return _x1; }
    T y1() const { return _y1; }
    T x2() const { return _x2; }
    T y2() const { return _y2; }

    /// Grows the box so that the point lies in it or on its edge.
    void AddClosed(T x, T y) { unite(Box2(x, y, x, y)); }

    /// Grows the box so that it holds the other one; an empty box adds nothing.
    void unite(const Box2& other)
    {
        if (other._empty)
            return;
        if (_empty) {
            *this = other;
            return;
        }
        _x1 = std::min(_x1, other._x1);
        _y1 = std::min(_y1, other._y1);
        _x2 = std::max(_x2, other._x2);
        _y2 = std::max(_y2, other._y2);
    }

    /// The box as a rectangle of doubles; all zero when the box is empty.
    Rect2d GetRect() const
    {
        return {static_cast<double>(_x1), static_cast<double>(_y1), static_cast<double>(_x2),
                static_cast<double>(_y2)};
    }

    friend bool operator==(const Box2&, const Box2&) = default;

private:
    T _x1 = 0;
    T _y1 = 0;
    T _x2 = 0;
    T _y2 = 0;
    bool _empty = true;
};

using Box2d = Box2<double>;
using Box2di = Box2<int>;

} // namespace Math
