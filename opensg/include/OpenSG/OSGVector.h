// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>

#include <cmath>

namespace osg {

/// Three or four numbers with a meaning of their own: what a vector and a point have in common.
/// All of them are zero by default.
template <UInt32 Size>
class Tuple
{
public:
    Tuple() = default;

    Real32& operator[](UInt32 index) { return _values[index]; }
    const Real32& operator[](UInt32 index) const { return _values[index]; }
    Real32 x() const { return _values[0]; }
    Real32 y() const { return _values[1]; }
    Real32 z() const { return _values[2]; }

    const Real32* getValues() const { return _values; }

protected:
    Tuple(Real32 x, Real32 y, Real32 z)
        : _values{x, y, z}
    {
    }
    Tuple(Real32 x, Real32 y, Real32 z, Real32 w)
        : _values{x, y, z, w}
    {
    }
    bool equals(const Tuple& other) const
    {
        for (UInt32 i = 0; i < Size; ++i) {
            if (_values[i] != other._values[i])
                return false;
        }
        return true;
    }

private:
    Real32 _values[Size] = {};
};

/// A direction with a length.
class Vec3f : public Tuple<3>
{
public:
    Vec3f() = default;
    Vec3f(Real32 x, Real32 y, Real32 z)
        : Tuple(x, y, z)
    {
    }

    void setValues(Real32 x, Real32 y, Real32 z) { *this = Vec3f(x, y, z); }
    bool operator==(const Vec3f& other) const { return equals(other); }

    Vec3f operator+(const Vec3f& v) const { return Vec3f(x() + v.x(), y() + v.y(), z() + v.z()); }
    Vec3f operator-(const Vec3f& v) const { return Vec3f(x() - v.x(), y() - v.y(), z() - v.z()); }
    Vec3f operator-() const { return Vec3f(-x(), -y(), -z()); }
    Vec3f operator*(Real32 factor) const { return Vec3f(x() * factor, y() * factor, z() * factor); }

    Real32 dot(const Vec3f& v) const { return x() * v.x() + y() * v.y() + z() * v.z(); }
    Vec3f cross(const Vec3f& v) const
    {
        return Vec3f(y() * v.z() - z() * v.y(), z() * v.x() - x() * v.z(),
                     x() * v.y() - y() * v.x());
    }
    Real32 length() const { return std::sqrt(dot(*this)); }
    /// Makes the length 1; a vector without length stays as it is.
    void normalize()
    {
        const Real32 size = length();
        if (size > 0)
            *this = *this * (1 / size);
    }
};

/// A place. Differences of points are vectors.
class Pnt3f : public Tuple<3>
{
public:
    Pnt3f() = default;
    Pnt3f(Real32 x, Real32 y, Real32 z)
        : Tuple(x, y, z)
    {
    }

    void setValues(Real32 x, Real32 y, Real32 z) { *this = Pnt3f(x, y, z); }
    bool operator==(const Pnt3f& other) const { return equals(other); }

    Pnt3f operator+(const Vec3f& v) const { return Pnt3f(x() + v.x(), y() + v.y(), z() + v.z()); }
    Pnt3f operator-(const Vec3f& v) const { return Pnt3f(x() - v.x(), y() - v.y(), z() - v.z()); }
    Vec3f operator-(const Pnt3f& p) const { return Vec3f(x() - p.x(), y() - p.y(), z() - p.z()); }
};

/// A column of a matrix.
class Vec4f : public Tuple<4>
{
public:
    Vec4f() = default;
    Vec4f(Real32 x, Real32 y, Real32 z, Real32 w)
        : Tuple(x, y, z, w)
    {
    }

    Real32 w() const { return (*this)[3]; }
    bool operator==(const Vec4f& other) const { return equals(other); }
};

} // namespace osg
