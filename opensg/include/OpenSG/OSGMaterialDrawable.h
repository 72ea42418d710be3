// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGDrawable.h>

namespace osg {

class MaterialDrawable;
typedef FCPtr<DrawablePtr, MaterialDrawable> MaterialDrawablePtr;
typedef RefPtr<MaterialDrawablePtr> MaterialDrawableRefPtr;

/// The base of the cores whose surface could have a material. Its nodes own it.
class OSG_CORE_API MaterialDrawable : public Drawable
{
public:
    typedef MaterialDrawablePtr Ptr;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

protected:
    MaterialDrawable() = default;
    ~MaterialDrawable() override;
};

} // namespace osg
