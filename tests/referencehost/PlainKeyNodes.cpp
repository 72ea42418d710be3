// SPDX-License-Identifier: MIT
#include "PlainKeyNodes.h"

#include "host/models/TD_KeyNodeFinders.h"
#include "host/models/TD_NodeName.h"
#include "host/models/TD_SceneGraphUtil.h"

namespace {

bool isKey(const osg::NodePtr& node)
{
    return TD_SceneGraphUtil::isKeySubnode(node);
}

void appendChildren(const osg::NodePtr& node, PlainKeyNodes::Nodes& found)
{
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        if (isKey(node->getChild(i)))
            found.push_back(node->getChild(i));
        else
            appendChildren(node->getChild(i), found);
    }
}

void collect(const osg::NodePtr& node, PlainKeyNodes::Nodes& all)
{
    all.push_back(node);
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i)
        collect(node->getChild(i), all);
}

bool findsAsPlainly(const osg::NodePtr& root, const QString& name)
{
    return TD_FindKeyNode()(root, AT_ModelNodeKey(name)) == PlainKeyNodes::find(root, name);
}

} // namespace

osg::NodePtr PlainKeyNodes::find(const osg::NodePtr& root, const QString& name)
{
    if (isKey(root) && !name.isEmpty() && TD_nodeName(root) == name)
        return root;
    for (osg::UInt32 i = 0; i < root->getNChildren(); ++i) {
        const osg::NodePtr found = find(root->getChild(i), name);
        if (found != osg::NullFC)
            return found;
    }
    return osg::NodePtr();
}

osg::NodePtr PlainKeyNodes::parentOf(const osg::NodePtr& node)
{
    const osg::NodePtr above = node->getParent();
    return above == osg::NullFC || isKey(above) ? above : parentOf(above);
}

PlainKeyNodes::Nodes PlainKeyNodes::childrenOf(const osg::NodePtr& node)
{
    Nodes found;
    appendChildren(node, found);
    return found;
}

QString PlainKeyNodes::wrongAnswer(const osg::NodePtr& root)
{
    Nodes all;
    collect(root, all);
    for (std::size_t i = 0; i < all.size(); ++i) {
        const osg::NodePtr& node = all[i];
        const QString where = QStringLiteral(" of node %1").arg(i);
        const Nodes expected = childrenOf(node);
        Nodes children;
        TD_FindChildrenKeyNode::getChildren(node, children);
        if (children != expected)
            return QStringLiteral("children") + where;
        const osg::NodePtr firstChild = expected.empty() ? osg::NodePtr() : expected.front();
        if (TD_FindFirstChildKeyNode()(node) != firstChild)
            return QStringLiteral("first child") + where;
        if (TD_FindParentKeyNode()(node) != parentOf(node))
            return QStringLiteral("parent") + where;
        for (const QString& name : {QString(), QStringLiteral("part3"), QStringLiteral("no such"),
                                    QStringLiteral("root"), TD_nodeName(node)}) {
            if (!findsAsPlainly(node, name) || !findsAsPlainly(root, name))
                return QStringLiteral("find ") + name + where;
        }
    }
    return QString();
}
