// SPDX-License-Identifier: MIT
#include "referencehost/models/KeyNodeIndex.h"

#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"

#include <memory>

namespace {

struct Entry
{
    std::unique_ptr<KeyNodeIndex> index;
    int models = 0;
};

std::map<osg::NodePtr, Entry>& entries()
{
    static std::map<osg::NodePtr, Entry> all;
    return all;
}

/// Visits a tree in pre-order, without recursion, as deep as the visitor says.
template <class Visitor>
void walk(const osg::NodePtr& root, const Visitor& goesDeeper)
{
    std::vector<osg::NodePtr> pending;
    if (root != osg::NullFC)
        pending.push_back(root);
    while (!pending.empty()) {
        const osg::NodePtr node = pending.back();
        pending.pop_back();
        if (!goesDeeper(node))
            continue;
        for (osg::UInt32 i = node->getNChildren(); i > 0; --i)
            pending.push_back(node->getChild(i - 1));
    }
}

} // namespace

KeyNodeIndex::KeyNodeIndex(const osg::NodePtr& root)
    : _root(root)
{
}

void KeyNodeIndex::enter(const osg::NodePtr& root)
{
    if (root == osg::NullFC)
        return;
    Entry& entry = entries()[root];
    if (entry.models++ == 0)
        entry.index = std::make_unique<KeyNodeIndex>(root);
}

void KeyNodeIndex::leave(const osg::NodePtr& root)
{
    const auto it = entries().find(root);
    if (it != entries().end() && --it->second.models == 0)
        entries().erase(it);
}

KeyNodeIndex* KeyNodeIndex::of(const osg::NodePtr& root)
{
    const auto it = entries().find(root);
    return it == entries().end() ? nullptr : it->second.index.get();
}

KeyNodeIndex* KeyNodeIndex::ofModelWith(const osg::NodePtr& node)
{
    osg::NodePtr top = node;
    while (top != osg::NullFC && top->getParent() != osg::NullFC)
        top = top->getParent();
    return of(top);
}

osg::NodePtr KeyNodeIndex::find(const AT_ModelNodeKey& key)
{
    if (!_hasNames) {
        _hasNames = true;
        walk(_root, [this](const osg::NodePtr& node) {
            if (TD_SceneGraphUtil::isKeySubnode(node)) {
                osg::NodePtr& first = _firstNodes[TD_nodeName(node)];
                if (first == osg::NullFC)
                    first = node;
            }
            return true;
        });
    }
    return key.empty() ? osg::NodePtr() : _firstNodes.value(key.name());
}

const std::vector<osg::NodePtr>& KeyNodeIndex::keyChildren(const osg::NodePtr& parent)
{
    const auto [it, isNew] = _keyChildren.try_emplace(parent);
    if (isNew)
        it->second = findKeyChildren(parent);
    return it->second;
}

std::vector<osg::NodePtr> findKeyChildren(const osg::NodePtr& parent)
{
    std::vector<osg::NodePtr> found;
    walk(parent, [&](const osg::NodePtr& node) {
        if (node == parent || !TD_SceneGraphUtil::isKeySubnode(node))
            return true;
        found.push_back(node);
        return false;
    });
    return found;
}

osg::NodePtr findKeyNode(const osg::NodePtr& root, const AT_ModelNodeKey& key)
{
    osg::NodePtr found;
    if (key.empty())
        return found;
    walk(root, [&](const osg::NodePtr& node) {
        if (found == osg::NullFC && TD_SceneGraphUtil::isKeySubnode(node) &&
            AT_ModelNodeKey(TD_nodeName(node)) == key)
            found = node;
        return found == osg::NullFC;
    });
    return found;
}
