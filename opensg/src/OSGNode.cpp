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
    for (const NodePtr& child : m_children) {
        child->m_parent = NullFC;
        subRefCP(child);
    }
}

bool Node::leaveParent()
{
    if (!m_parent)
        return false;
    std::vector<NodePtr>& siblings = m_parent->m_children;
    siblings.erase(std::find(siblings.begin(), siblings.end(), NodePtr(this)));
    m_parent = NullFC;
    return true;
}

void Node::adopt(const NodePtr& child)
{
    // The reference of an old parent becomes ours, so the child cannot die on the way.
    if (!child->leaveParent())
        addRefCP(child);
    child->m_parent = NodePtr(this);
}

Int32 Node::findChild(const NodePtr& child) const
{
    if (!child || child->m_parent.getCPtr() != this)
        return -1;
    const auto found = std::find(m_children.begin(), m_children.end(), child);
    return static_cast<Int32>(found - m_children.begin());
}

void Node::addChild(const NodePtr& child)
{
    if (!child)
        return;
    adopt(child);
    m_children.push_back(child);
}

void Node::insertChild(UInt32 index, const NodePtr& child)
{
    if (!child)
        return;
    adopt(child);
    m_children.insert(m_children.begin() + std::min(index, getNChildren()), child);
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
    m_children[findChild(oldChild)] = newChild;
    oldChild->m_parent = NullFC;
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
    const NodePtr child = m_children[index];
    m_children.erase(m_children.begin() + index);
    child->m_parent = NullFC;
    subRefCP(child);
}

void Node::setCore(const NodeCorePtr& core)
{
    m_core = core;
}

} // namespace osg
