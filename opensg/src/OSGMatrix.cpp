// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMatrix.h>

#include <algorithm>

namespace osg {

namespace {

/// The matrix times a column of four.
Vec4f product(const Matrix& matrix, Real32 x, Real32 y, Real32 z, Real32 w)
{
    Vec4f result;
    for (UInt32 row = 0; row < 4; ++row) {
        result[row] =
            matrix[0][row] * x + matrix[1][row] * y + matrix[2][row] * z + matrix[3][row] * w;
    }
    return result;
}

} // namespace

Matrix::Matrix()
{
    setIdentity();
}

Matrix::Matrix(Real32 v00, Real32 v10, Real32 v20, Real32 v30, Real32 v01, Real32 v11, Real32 v21,
               Real32 v31, Real32 v02, Real32 v12, Real32 v22, Real32 v32, Real32 v03, Real32 v13,
               Real32 v23, Real32 v33)
    : _columns{Vec4f(v00, v01, v02, v03), Vec4f(v10, v11, v12, v13), Vec4f(v20, v21, v22, v23),
               Vec4f(v30, v31, v32, v33)}
{
}

void Matrix::setIdentity()
{
    for (UInt32 column = 0; column < 4; ++column) {
        for (UInt32 row = 0; row < 4; ++row)
            _columns[column][row] = column == row ? 1.0f : 0.0f;
    }
}

void Matrix::setValue(const Real32* values)
{
    for (UInt32 column = 0; column < 4; ++column) {
        for (UInt32 row = 0; row < 4; ++row)
            _columns[column][row] = values[4 * column + row];
    }
}

void Matrix::setTranslate(Real32 x, Real32 y, Real32 z)
{
    _columns[3] = Vec4f(x, y, z, _columns[3].w());
}

void Matrix::setScale(Real32 x, Real32 y, Real32 z)
{
    _columns[0][0] = x;
    _columns[1][1] = y;
    _columns[2][2] = z;
}

void Matrix::mult(const Matrix& right)
{
    Matrix result;
    for (UInt32 column = 0; column < 4; ++column) {
        const Vec4f& v = right[column];
        result[column] = product(*this, v.x(), v.y(), v.z(), v.w());
    }
    *this = result;
}

void Matrix::multLeft(const Matrix& left)
{
    Matrix result = left;
    result.mult(*this);
    *this = result;
}

void Matrix::multMatrixPnt(const Pnt3f& source, Pnt3f& target) const
{
    const Vec4f v = product(*this, source.x(), source.y(), source.z(), 1);
    target.setValues(v.x(), v.y(), v.z());
}

void Matrix::multFullMatrixPnt(const Pnt3f& source, Pnt3f& target) const
{
    const Vec4f v = product(*this, source.x(), source.y(), source.z(), 1);
    const Real32 divisor = v.w() == 0 ? 1 : v.w();
    target.setValues(v.x() / divisor, v.y() / divisor, v.z() / divisor);
}

void Matrix::multMatrixVec(const Vec3f& source, Vec3f& target) const
{
    const Vec4f v = product(*this, source.x(), source.y(), source.z(), 0);
    target.setValues(v.x(), v.y(), v.z());
}

bool Matrix::operator==(const Matrix& other) const
{
    return std::equal(_columns, _columns + 4, other._columns);
}

} // namespace osg
