// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

namespace osg {

/// A transformation of space, 4 by 4 numbers in columns: m[3][0] is the translation along x. It is
/// the identity by default. Points are columns to its right, so a.mult(b) makes a do what b did
/// before and then what a did.
class OSG_CORE_API Matrix
{
public:
    Matrix();
    /// Sixteen numbers, row by row as on paper.
    Matrix(Real32 v00, Real32 v10, Real32 v20, Real32 v30, Real32 v01, Real32 v11, Real32 v21,
           Real32 v31, Real32 v02, Real32 v12, Real32 v22, Real32 v32, Real32 v03, Real32 v13,
           Real32 v23, Real32 v33);

    void setIdentity();
    /// Sixteen numbers, column by column.
    void setValue(const Real32* values);
    /// Replace the translation or the scale and leave the rest as it is.
    void setTranslate(Real32 x, Real32 y, Real32 z);
    void setScale(Real32 x, Real32 y, Real32 z);

    /// A column.
    Vec4f& operator[](UInt32 column) { return _columns[column]; }
    const Vec4f& operator[](UInt32 column) const { return _columns[column]; }

    /// this = this * right
    void mult(const Matrix& right);
    /// this = left * this
    void multLeft(const Matrix& left);

    /// The transformed point, by an affine matrix.
    void multMatrixPnt(const Pnt3f& source, Pnt3f& target) const;
    /// The transformed point, by any matrix: divided by the fourth coordinate unless that is 0.
    void multFullMatrixPnt(const Pnt3f& source, Pnt3f& target) const;
    /// The transformed vector: it is turned and scaled, not moved.
    void multMatrixVec(const Vec3f& source, Vec3f& target) const;

    bool operator==(const Matrix& other) const;

private:
    Vec4f _columns[4];
};

} // namespace osg
