// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNodeCore.h>

namespace osg {

class Group;
typedef FCPtr<NodeCorePtr, Group> GroupPtr;
typedef RefPtr<GroupPtr> GroupRefPtr;

/// A core that only holds its node's children together. Its nodes own it.
class OSG_CORE_API Group : public NodeCore
{
public:
    typedef GroupPtr Ptr;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

    /// A group without references. NullFC before osgInit().
    static GroupPtr create();

protected:
    Group() = default;
    ~Group() override;
};

} // namespace osg
