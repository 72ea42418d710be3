// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

namespace osg {

/// The base of everything that a node can hold. One core may sit in several nodes, each of which
/// owns a reference of it; it dies with the last one unless somebody else holds it.
class OSG_CORE_API NodeCore : public AttachmentContainer
{
public:
    typedef NodeCorePtr Ptr;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

protected:
    NodeCore() = default;
    ~NodeCore() override;
};

/// A new node with the given core, which may be NullFC. NullFC before osgInit().
OSG_CORE_API NodePtr makeNodeFor(const NodeCorePtr& core);

/// A new node with a new core of the given class, which is also stored where the argument points.
template <class Core>
NodePtr makeCoredNode(typename Core::Ptr* core = nullptr)
{
    const typename Core::Ptr made = Core::create();
    if (core)
        *core = made;
    return makeNodeFor(made);
}

} // namespace osg
