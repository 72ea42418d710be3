// SPDX-License-Identifier: MIT
#include <OpenSG/OSGNode.h>

#include <algorithm>

namespace osg {

namespace {
FieldContainerType type("Node", "AttachmentContainer");
} // namespace

FieldContainerType& Node::getClassType()
{
    return type;
}

FieldContainerType& Node::getType()
{
    return type;
}

const FieldContainerType& Node::getType() const
{
    return type;
}

NodePtr Node::create()
{
    return canCreate() ? NodePtr(new Node) : NodePtr();
}

Node::~Node()
{
    // Reached below a parent only after one reference too many was given back; even then no parent
    // may be left with a dead child.
    leaveParent();
    for (const NodePtr& child : _children) {
        child->_parent = NullFC;
        subRefCP(child);
    }
}

bool Node::leaveParent()
{
    if (!_parent)
        return false;
    std::vector<NodePtr>& siblings = _parent->_children;
    siblings.erase(std::find(siblings.begin(), siblings.end(), NodePtr(this)));
    _parent = NullFC;
    return true;
}

void Node::adopt(const NodePtr& child)
{
    // The reference of an old parent becomes ours, so the child cannot die on the way.
    if (!child->leaveParent())
        addRefCP(child);
    child->_parent = NodePtr(this);
}

Int32 Node::findChild(const NodePtr& child) const
{
    if (!child || child->_parent.getCPtr() != this)
        return -1;
    const auto found = std::find(_children.begin(), _children.end(), child);
    return static_cast<Int32>(found - _children.begin());
}

void Node::addChild(const NodePtr& child)
{
    if (!child)
        return;
    adopt(child);
    _children.push_back(child);
}

void Node::insertChild(UInt32 index, const NodePtr& child)
{
    if (!child)
        return;
    adopt(child);
    _children.insert(_children.begin() + std::min(index, getNChildren()), child);
}

void Node::replaceChild(UInt32 index, const NodePtr& child)
{
    if (index < getNChildren())
        replaceChildBy(getChild(index), child);
}

bool Node::replaceChildBy(const NodePtr& oldChild, const NodePtr& newChild)
{
    if (!newChild || findChild(oldChild) < 0)
        return false;
    if (oldChild == newChild)
        return true;
    adopt(newChild);
    _children[findChild(oldChild)] = newChild;
    oldChild->_parent = NullFC;
    subRefCP(oldChild);
    return true;
}

void Node::subChild(const NodePtr& child)
{
    const Int32 index = findChild(child);
    if (index >= 0)
        subChild(static_cast<UInt32>(index));
}

void Node::subChild(UInt32 index)
{
    if (index >= getNChildren())
        return;
    const NodePtr child = _children[index];
    _children.erase(_children.begin() + index);
    child->_parent = NullFC;
    subRefCP(child);
}

void Node::setCore(const NodeCorePtr& core)
{
    _core = core;
}

} // namespace osg
