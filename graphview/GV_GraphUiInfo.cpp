// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"

#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_TreeWalk.h"
#include "host/models/TD_CelVq3d.h"
#include "host/scene/MO_ElementModule.h"

GV_GraphUiInfo::GV_GraphUiInfo()
    : _selectedNodes(_initialBuckets)
{
}

GV_GraphUiInfo::GV_GraphUiInfo(const GV_GraphUiInfo& other)
    : _graphs(other._graphs)
    , _visibleGraphIx(other._visibleGraphIx)
    , _selectedNodes(other._selectedNodes)
{
}

GV_GraphUiInfo& GV_GraphUiInfo::operator=(const GV_GraphUiInfo& other)
{
    if (this != &other) {
        _graphs = other._graphs;
        _visibleGraphIx = other._visibleGraphIx;
        _selectedNodes = other._selectedNodes;
    }
    return *this;
}

GV_GraphUiInfo::~GV_GraphUiInfo()
{
    clearUiNodeGraph();
}

void GV_GraphUiInfo::clearUiNodeGraph()
{
    for (const GraphInfo& info : _graphs)
        deleteTree(info.rootNode);
    _graphs.clear();
    _visibleGraphIx = -1;
    ++_graphsRevision;
}

bool GV_GraphUiInfo::isEmpty() const
{
    return _graphs.empty();
}

MO_ElementModule* GV_GraphUiInfo::modelNode(int ix) const
{
    if (ix < 0 || ix >= static_cast<int>(_graphs.size()))
        return nullptr;
    return _graphs[ix].model.get();
}

int GV_GraphUiInfo::visibleGraphIx() const
{
    return _visibleGraphIx;
}

MO_ElementModule* GV_GraphUiInfo::visibleGraphModelNode() const
{
    return modelNode(_visibleGraphIx);
}

GV_UiHeaderNode* GV_GraphUiInfo::rootUiNode() const
{
    return _visibleGraphIx < 0 ? nullptr : _graphs[_visibleGraphIx].rootNode;
}

GV_GraphUiInfo::GraphInfo* GV_GraphUiInfo::visibleGraph()
{
    return _visibleGraphIx < 0 ? nullptr : &_graphs[_visibleGraphIx];
}

int GV_GraphUiInfo::headerNodes(std::vector<const GV_UiNode*>& out) const
{
    for (const GraphInfo& info : _graphs)
        out.push_back(info.rootNode);
    return _visibleGraphIx;
}

GV_GraphUiInfo::SelectedNodeMap& GV_GraphUiInfo::selectedNodes()
{
    ++_selectionRevision;
    return _selectedNodes;
}

const GV_GraphUiInfo::SelectedNodeMap& GV_GraphUiInfo::selectedNodes() const
{
    return _selectedNodes;
}

void GV_GraphUiInfo::accept(GV_GraphVisitor& visitor)
{
    for (int ix = 0; ix < static_cast<int>(_graphs.size()); ++ix) {
        if (ix != _visibleGraphIx)
            _graphs[ix].rootNode->accept(visitor);
    }
    if (_visibleGraphIx >= 0)
        traverse(_graphs[_visibleGraphIx].rootNode, visitor);
}

void GV_GraphUiInfo::accept(GV_HeaderVisitor& visitor)
{
    for (const GraphInfo& info : _graphs) {
        if (info.rootNode)
            info.rootNode->accept(visitor);
    }
}

void GV_GraphUiInfo::accept(GV_VisibleTreeVisitor& visitor)
{
    if (_visibleGraphIx >= 0)
        traverse(_graphs[_visibleGraphIx].rootNode, visitor);
}

void GV_GraphUiInfo::traverse(GV_UiNode* node, GV_GraphVisitor& visitor)
{
    GV_TreeWalk walk(node);
    while (GV_UiNode* visited = walk.next())
        visited->accept(visitor);
}
