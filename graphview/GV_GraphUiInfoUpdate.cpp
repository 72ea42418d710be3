// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_TreeWalk.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"

#include <algorithm>
#include <unordered_map>

bool GV_GraphUiInfo::updateGraphUiInfo(const ModelList& models,
                                       const MO_ElementModule* visibleModel, bool extendedDisplay)
{
    std::vector<GraphInfo> updated;
    std::int32_t visibleIx = -1;

    for (const auto& [element, cel] : models) {
        if (!element)
            continue;
        if (element == visibleModel)
            visibleIx = static_cast<std::int32_t>(updated.size());
        const auto kept =
            std::find_if(_graphs.begin(), _graphs.end(), [wanted = element](const GraphInfo& info) {
                return info.model.get() == wanted;
            });
        if (kept == _graphs.end()) {
            updated.push_back(newGraphInfo(element, cel, extendedDisplay));
            continue;
        }
        if (kept->extendedDisplay != extendedDisplay) {
            kept->extendedDisplay = extendedDisplay;
            clearTree(kept->rootNode);
        }
        kept->rootNode->setEditable(element->isEditable());
        updated.push_back(std::move(*kept));
        _graphs.erase(kept);
    }

    const bool anyRemoved = !_graphs.empty();
    for (const GraphInfo& gone : _graphs)
        deleteTree(gone.rootNode);

    _graphs = std::move(updated);
    const bool visibleChanged = _visibleGraphIx != visibleIx;
    _visibleGraphIx = visibleIx;
    bool orderChanged = false;
    for (int ix = 0; ix < static_cast<int>(_graphs.size()); ++ix) {
        orderChanged |= _graphs[ix].rootNode->graphIx() != ix;
        _graphs[ix].rootNode->setGraphIx(ix);
    }
    if (anyRemoved || visibleChanged || orderChanged)
        ++_graphsRevision;
    rememberSelectedHeaders();

    if (GraphInfo* visible = visibleGraph(); visible && !visible->rootNode->hasChildren()) {
        buildUiNodeGraph(*visible, extendedDisplay);
        return true;
    }
    return anyRemoved || visibleChanged;
}

bool GV_GraphUiInfo::updateGraphUiInfo(const ModelList& models, const std::set<MO_ElementModule*>&,
                                       const MO_ElementModule* visibleModel, bool extendedDisplay)
{
    return updateGraphUiInfo(models, visibleModel, extendedDisplay);
}

GV_GraphUiInfo::GraphInfo GV_GraphUiInfo::newGraphInfo(MO_ElementModule* element,
                                                       const CEL_SharedPtr<TD_CelVq3d>& cel,
                                                       bool extendedDisplay) const
{
    const QString name = element->instanceName();
    const osg::NodePtr root = cel ? cel->rootNodePtr() : osg::NodePtr();
    GraphInfo info;
    info.rootNode =
        new GV_UiHeaderNode(name, calculateDisplayName(name), root, element, element->isEditable());
    info.model = element;
    info.cel = cel;
    info.extendedDisplay = extendedDisplay;
    return info;
}

void GV_GraphUiInfo::rememberSelectedHeaders()
{
    // An element that comes back, for one because the frame has a drawing for it again, is as
    // selected as it was when its header went.
    for (const GraphInfo& info : _graphs) {
        const auto it = _selectedNodes.find(GV_UiNodeKey(info.rootNode));
        if (it != _selectedNodes.end() && !it->second)
            it->second = info.rootNode;
    }
}

void GV_GraphUiInfo::updateHeaderNodesName(std::set<GV_UiHeaderNode*> headers)
{
    for (GV_UiHeaderNode* header : headers) {
        if (const MO_ElementModule* element = header->model()) {
            const QString name = element->instanceName();
            header->setNames(name, calculateDisplayName(name));
        }
    }
}

bool GV_GraphUiInfo::displayModeChanged(bool extendedDisplay)
{
    GraphInfo* visible = visibleGraph();
    if (!visible)
        return false;
    buildUiNodeGraph(*visible, extendedDisplay);
    return true;
}

void GV_GraphUiInfo::deleteTree(GV_UiHeaderNode* root)
{
    forgetSelectedNodes(root, true);
    delete root;
}

void GV_GraphUiInfo::clearTree(GV_UiHeaderNode* root)
{
    forgetSelectedNodes(root, false);
    root->clearChildren();
}

void GV_GraphUiInfo::forgetSelectedNodes(GV_UiNode* root, bool includingRoot)
{
    // The selection outlives the nodes; what it points to must not be read once they are gone.
    if (_selectedNodes.empty())
        return;
    std::unordered_multimap<const GV_UiNode*, const GV_UiNode**> selected;
    for (auto& [key, node] : _selectedNodes)
        selected.emplace(node, &node);
    GV_TreeWalk walk(root);
    while (const GV_UiNode* node = walk.next()) {
        if (node == root && !includingRoot)
            continue;
        const auto [first, last] = selected.equal_range(node);
        for (auto it = first; it != last; ++it)
            *it->second = nullptr;
    }
}
