// SPDX-License-Identifier: MIT

#include "workbench/batch/NodeListing.h"

#include "host/models/AT_ModelData.h"
#include "host/models/TD_NodeName.h"

#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGNodeCore.h>
#include <algorithm>

namespace {

struct PendingNode
{
    osg::NodePtr node;
    int depth;
};

bool isKeyNode(const osg::NodeCorePtr& core)
{
    return core != osg::NullFC && core->getType().isDerivedFrom(osg::KeyTransform::getClassType());
}

ListedNode listed(const PendingNode& pending, const ListingOptions& options)
{
    const osg::NodeCorePtr core = pending.node->getCore();
    ListedNode node;
    node.name = TD_nodeName(pending.node);
    if (core != osg::NullFC)
        node.type = QString::fromLatin1(core->getType().getCName());
    node.depth = pending.depth;
    node.isKey = isKeyNode(core);
    if (!node.isKey)
        return node;
    const AT_ModelNodeData* record =
        options.settings ? options.settings->nodeData(AT_ModelNodeKey(node.name)) : nullptr;
    if (record) {
        node.disabled = !record->visible;
        node.shapeHidden = !record->localVisible;
        node.hasProperties = record->hasTransformation;
    }
    node.selected = options.selected.contains(node.name);
    return node;
}

/// Goes through the list upwards, where what a node leads to comes before the node.
std::vector<ListedNode> filtered(const std::vector<ListedNode>& all, const QString& text)
{
    std::vector<ListedNode> kept;
    int wantedDepth = 0;
    for (auto node = all.rbegin(); node != all.rend(); ++node) {
        const bool leadsToOne = node->depth == wantedDepth;
        if (!leadsToOne && !node->name.contains(text, Qt::CaseInsensitive))
            continue;
        kept.push_back(*node);
        wantedDepth = node->depth - 1;
    }
    std::ranges::reverse(kept);
    return kept;
}

} // namespace

std::vector<ListedNode> listNodes(const osg::NodePtr& root, const ListingOptions& options)
{
    std::vector<ListedNode> all;
    std::vector<PendingNode> pending;
    if (root != osg::NullFC)
        pending.push_back({root, 1});
    while (!pending.empty()) {
        const PendingNode next = pending.back();
        pending.pop_back();
        const bool isListed = options.everyNode || isKeyNode(next.node->getCore());
        if (isListed)
            all.push_back(listed(next, options));
        const int childDepth = isListed ? next.depth + 1 : next.depth;
        for (osg::UInt32 i = next.node->getNChildren(); i > 0; --i)
            pending.push_back({next.node->getChild(i - 1), childDepth});
    }
    return options.filter.isEmpty() ? all : filtered(all, options.filter);
}
