// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGTransform.h>

namespace osg {

class KeyTransform;
typedef FCPtr<TransformPtr, KeyTransform> KeyTransformPtr;
typedef RefPtr<KeyTransformPtr> KeyTransformRefPtr;

/// A transform that marks its node as a part of the model that can be named, selected and animated
/// by itself. It adds nothing but its type. Its nodes own it.
class OSG_CORE_API KeyTransform : public Transform
{
public:
    typedef KeyTransformPtr Ptr;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

    /// A transform without references that leaves everything in place. NullFC before osgInit().
    static KeyTransformPtr create();

protected:
    KeyTransform() = default;
    ~KeyTransform() override;
};

} // namespace osg
