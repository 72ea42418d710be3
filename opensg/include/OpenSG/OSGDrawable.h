// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNodeCore.h>

namespace osg {

class Drawable;
typedef FCPtr<NodeCorePtr, Drawable> DrawablePtr;
typedef RefPtr<DrawablePtr> DrawableRefPtr;

/// The base of the cores that can be seen. Its nodes own it.
class OSG_CORE_API Drawable : public NodeCore
{
public:
    typedef DrawablePtr Ptr;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

protected:
    Drawable() = default;
    ~Drawable() override;
};

} // namespace osg
