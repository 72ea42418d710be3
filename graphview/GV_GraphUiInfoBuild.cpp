// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_NameShortener.h"
#include "graphview/GV_UiSgNode.h"
#include "host/models/TD_CelVq3d.h"
#include "host/models/TD_NodeName.h"

#include <OpenSG/OSGKeyTransform.h>

namespace {

/// Points the selected keys at the nodes that bear them now.
class SelectedNodeMapUpdator : public GV_GraphVisitor
{
public:
    explicit SelectedNodeMapUpdator(GV_GraphUiInfo::SelectedNodeMap& selectedNodes)
        : _selectedNodes(selectedNodes)
    {
    }

    using GV_GraphVisitor::visit;
    void visit(GV_UiNode* node) override
    {
        const auto it = _selectedNodes.find(GV_UiNodeKey(node));
        if (it != _selectedNodes.end())
            it->second = node;
    }

private:
    GV_GraphUiInfo::SelectedNodeMap& _selectedNodes;
};

/// A scene-graph node that waits for its UI node, and the UI node that it will hang under.
struct PendingNode
{
    GV_UiNode* parent;
    osg::NodePtr node;
};

/// Puts the children on the stack so that the first one comes off it first.
void pushChildren(std::vector<PendingNode>& pending, GV_UiNode* parent, const osg::NodePtr& node)
{
    for (osg::UInt32 i = node->getNChildren(); i > 0; --i)
        pending.push_back({parent, node->getChild(i - 1)});
}

bool isKeyNode(const osg::NodePtr& node)
{
    const osg::NodeCorePtr core = node->getCore();
    return core != osg::NullFC && core->getType().isDerivedFrom(osg::KeyTransform::getClassType());
}

} // namespace

void GV_GraphUiInfo::buildUiNodeGraph(GraphInfo& info, bool extendedDisplay)
{
    if (extendedDisplay)
        buildUiNode(info);
    else
        buildUiNodeFiltered(info);
    calculateGeometricData();
    if (!_selectedNodes.empty()) {
        SelectedNodeMapUpdator updator(_selectedNodes);
        accept(updator);
    }
}

void GV_GraphUiInfo::buildUiNode(GraphInfo& info)
{
    clearTree(info.rootNode);
    info.extendedDisplay = true;
    if (!info.cel)
        return;
    if (GV_UiNode* top = buildUiNode(info.rootNode, info.cel->rootNodePtr()))
        info.rootNode->addChild(top);
}

void GV_GraphUiInfo::buildUiNodeFiltered(GraphInfo& info)
{
    clearTree(info.rootNode);
    info.extendedDisplay = false;
    if (info.cel)
        buildChildsUiNodeFiltered(info.rootNode, info.cel->rootNodePtr());
}

GV_UiNode* GV_GraphUiInfo::buildUiNode(GV_UiNode* parent, const osg::NodePtr& node)
{
    if (node == osg::NullFC)
        return nullptr;
    const auto newUiNode = [](GV_UiNode* uiParent, const osg::NodePtr& sgNode) {
        const QString name = TD_nodeName(sgNode);
        auto* uiNode =
            new GV_UiSgNode(uiParent, name, calculateDisplayName(name), sgNode, isKeyNode(sgNode));
        uiNode->reserveChildren(sgNode->getNChildren());
        return uiNode;
    };

    GV_UiNode* top = newUiNode(parent, node);
    std::vector<PendingNode> pending;
    pushChildren(pending, top, node);
    while (!pending.empty()) {
        const PendingNode next = pending.back();
        pending.pop_back();
        if (next.node == osg::NullFC)
            continue;
        GV_UiNode* uiNode = newUiNode(next.parent, next.node);
        next.parent->addChild(uiNode);
        pushChildren(pending, uiNode, next.node);
    }
    return top;
}

bool GV_GraphUiInfo::buildChildsUiNodeFiltered(GV_UiNode* parent, const osg::NodePtr& node)
{
    if (node == osg::NullFC || node->getNChildren() == 0)
        return false;
    std::vector<PendingNode> pending{{parent, node}};
    while (!pending.empty()) {
        PendingNode next = pending.back();
        pending.pop_back();
        // A leaf never shows here, a key node neither: there is nothing below it to act on.
        if (next.node == osg::NullFC || next.node->getNChildren() == 0)
            continue;
        if (isKeyNode(next.node)) {
            const QString name = TD_nodeName(next.node);
            GV_UiNode* uiNode =
                new GV_UiSgNode(next.parent, name, calculateDisplayName(name), next.node, true);
            next.parent->addChild(uiNode);
            next.parent = uiNode;
        }
        pushChildren(pending, next.parent, next.node);
    }
    return parent->hasChildren();
}

QString GV_GraphUiInfo::calculateDisplayName(const QString& name)
{
    static GV_NameShortener shortener(font());
    if (shortener.font() != font())
        shortener = GV_NameShortener(font());
    return shortener.shorten(name);
}
