// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGNodePtr.h>

#include <cassert>
#include <vector>

namespace osg {

/// A place in the hierarchy: it has a parent, children in an order, and a core that says what is
/// there. A node owns a reference of its core and of each child; the link to the parent is weak.
/// A dying node lets go of both, its children become roots, and who wants to keep a root holds a
/// reference of it. Nothing checks for cycles.
class OSG_CORE_API Node : public AttachmentContainer
{
public:
    typedef NodePtr Ptr;

    static constexpr BitVector ParentFieldMask = BitVector(1) << 2;
    static constexpr BitVector ChildrenFieldMask = BitVector(1) << 3;
    static constexpr BitVector CoreFieldMask = BitVector(1) << 4;

    static FieldContainerType& getClassType();
    FieldContainerType& getType() override;
    const FieldContainerType& getType() const override;

    /// A node without parent, children, core and references. NullFC before osgInit().
    static NodePtr create();

    /// NullFC for a root.
    NodePtr getParent() { return _parent; }

    UInt32 getNChildren() const { return static_cast<UInt32>(_children.size()); }
    /// The index must be less than getNChildren().
    NodePtr getChild(UInt32 index)
    {
        assert(index < _children.size());
        return _children[index];
    }
    /// The index of the child, -1 if it is not one of ours.
    Int32 findChild(const NodePtr& child) const;

    /// Takes the child from its parent, if it has one, and puts it last; so a child of our own
    /// moves to the end. NullFC is ignored.
    void addChild(const NodePtr& child);
    /// Like addChild(), but puts it before the child that has the index once it has left its old
    /// place. An index beyond the last child puts it last.
    void insertChild(UInt32 index, const NodePtr& child);
    /// Puts the child, which leaves its parent, in the place of the one at the index, which
    /// becomes a root and loses our reference. NullFC and an index out of range are ignored.
    void replaceChild(UInt32 index, const NodePtr& child);
    /// The same for a child that is known by itself. False, and nothing happens, if the old one is
    /// not our child or the new one is NullFC.
    bool replaceChildBy(const NodePtr& oldChild, const NodePtr& newChild);
    /// Makes the child a root and drops our reference of it, which may be its last. Nodes that are
    /// not our children and indices out of range are ignored.
    void subChild(const NodePtr& child);
    void subChild(UInt32 index);

    /// NullFC if there is none. The core may be that of other nodes, too.
    NodeCorePtr getCore() const { return _core; }
    /// Takes a reference of the new core and gives back that of the old one. NullFC leaves the node
    /// without a core.
    void setCore(const NodeCorePtr& core);

protected:
    Node() = default;
    ~Node() override;

private:
    /// Leaves the parent's reference to the caller; false if there is no parent.
    bool leaveParent();
    void adopt(const NodePtr& child);

    NodePtr _parent;
    NodeCoreRefPtr _core;
    std::vector<NodePtr> _children;
};

} // namespace osg
