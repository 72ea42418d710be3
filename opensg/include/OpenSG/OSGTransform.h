// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMatrix.h>

namespace osg {

class Transform;
typedef FCPtr<GroupPtr, Transform> TransformPtr;
typedef RefPtr<TransformPtr> TransformRefPtr;

/// A group that places what is below its nodes: the matrix takes their coordinates to those of the
/// parent. Its nodes own it.
class OSG_CORE_API Transform : public Group
{
public:
    typedef TransformPtr Ptr;

    static constexpr BitVector MatrixFieldMask = BitVector(1) << 2;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

    /// A transform without references that leaves everything in place. NullFC before osgInit().
    static TransformPtr create();

    const Matrix& getMatrix() const { return _matrix; }
    void setMatrix(const Matrix& matrix) { _matrix = matrix; }

protected:
    Transform() = default;
    ~Transform() override;

private:
    Matrix _matrix;
};

} // namespace osg
