// SPDX-License-Identifier: MIT
#include "host/models/TD_KeyNodeFinders.h"

#include "host/models/TD_SceneGraphUtil.h"
#include "referencehost/models/KeyNodeIndex.h"

osg::NodePtr TD_FindKeyNode::operator()(const osg::NodePtr& root, const AT_ModelNodeKey& key) const
{
    KeyNodeIndex* index = KeyNodeIndex::of(root);
    return index ? index->find(key) : findKeyNode(root, key);
}

osg::NodePtr TD_FindParentKeyNode::operator()(const osg::NodePtr& node) const
{
    if (node == osg::NullFC)
        return node;
    osg::NodePtr above = node->getParent();
    while (above != osg::NullFC && !TD_SceneGraphUtil::isKeySubnode(above))
        above = above->getParent();
    return above;
}

osg::NodePtr TD_FindFirstChildKeyNode::operator()(const osg::NodePtr& node) const
{
    std::vector<osg::NodePtr> children;
    TD_FindChildrenKeyNode::getChildren(node, children);
    return children.empty() ? osg::NodePtr() : children.front();
}

void TD_FindChildrenKeyNode::getChildren(const osg::NodePtr& parent,
                                         std::vector<osg::NodePtr>& list)
{
    if (KeyNodeIndex* index = KeyNodeIndex::ofModelWith(parent)) {
        const std::vector<osg::NodePtr>& children = index->keyChildren(parent);
        list.insert(list.end(), children.begin(), children.end());
        return;
    }
    const std::vector<osg::NodePtr> children = findKeyChildren(parent);
    list.insert(list.end(), children.begin(), children.end());
}
