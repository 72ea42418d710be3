// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_LayoutGrid.h"
#include "graphview/GV_TreeWalk.h"

#include <algorithm>

using namespace GV_LayoutGrid;

namespace {

/// The part of the node's cell that a point lies on, the point given from the origin of its tree.
GV_UiNode::eSelectionType cellPartAt(const GV_UiNode* node, double x, double y)
{
    const double px = x - node->column() * indent;
    const double py = y - node->row() * rowPitch;
    if (!(px >= 0 && px < boxWidth))
        return GV_UiNode::eNoSelection;
    if (py >= boxHeight) {
        const double dx = px - controlCentreX;
        const double dy = py - controlCentreY;
        return dx * dx + dy * dy < controlRadius * controlRadius
                   ? GV_UiNode::eCollapsingControlSelection
                   : GV_UiNode::eEmptySelection;
    }
    return px < boxWidth ? GV_UiNode::eNodeSelection : GV_UiNode::eEmptySelection;
}

/// Which cell of a row or column a coordinate lies in; -1 before the first one, and a number past
/// every cell where it lies too far off for one.
int cellIndex(double coordinate, int pitch)
{
    if (!(coordinate >= 0))
        return -1;
    constexpr double farthest = 2147483647.0;
    return static_cast<int>(std::min(coordinate / pitch, farthest));
}

} // namespace

void GV_GraphUiInfo::calculateGeometricData()
{
    GraphInfo* info = visibleGraph();
    if (!info)
        return;
    info->maxRow = -1;
    info->maxColumn = -1;
    if (!info->rootNode)
        return;
    int row = 0;
    calculateCounts(*info, info->rootNode, 0, row);
    info->height = std::max(0, (info->maxRow + 1) * rowPitch);
    info->width = std::max(0, info->maxColumn * indent + boxWidth);
}

void GV_GraphUiInfo::calculateCounts(GraphInfo& info, GV_UiNode* node, int column, int& row)
{
    // Rows count the shown nodes in pre-order, so the walk needs no more memory of where it is
    // than the column of each node that it still has to place.
    struct Placed
    {
        GV_UiNode* node;
        int column;
    };
    std::vector<Placed> pending{{node, column}};
    _shownRows.start(node);
    int nextRow = row;
    while (!pending.empty()) {
        const Placed placed = pending.back();
        pending.pop_back();
        row = nextRow++;
        placed.node->setCounts(placed.column, row);
        _shownRows.append(placed.node);
        info.maxColumn = std::max(info.maxColumn, placed.column);
        info.maxRow = std::max(info.maxRow, row);
        if (placed.node->isCollapsed()) {
            for (auto it = placed.node->childrenBegin(); it != placed.node->childrenEnd(); ++it)
                propagateNegativeCounts(*it);
            continue;
        }
        for (auto it = placed.node->childrenEnd(); it != placed.node->childrenBegin();)
            pending.push_back({*--it, placed.column + 1});
    }
    _shownRows.finish();
}

void GV_GraphUiInfo::propagateNegativeCounts(GV_UiNode* node) const
{
    GV_TreeWalk walk(node);
    while (GV_UiNode* below = walk.next())
        below->setCounts(-1, -1);
}

Math::Box2di GV_GraphUiInfo::boundingRect()
{
    if (_graphs.empty())
        return {};
    const int headersWidth =
        static_cast<int>(_graphs.size()) * headerPitch - (headerPitch - boxWidth);
    Math::Box2di box(0, 0, headersWidth, boxHeight);
    if (const GraphInfo* visible = visibleGraph()) {
        const int left = _visibleGraphIx * headerPitch;
        box.unite(Math::Box2di(left, 0, left + visible->width, visible->height));
    }
    return box;
}

const GV_ShownRows& GV_GraphUiInfo::shownRows() const
{
    GV_UiNode* root = rootUiNode();
    if (!_shownRows.isCurrent(root))
        _shownRows.rebuild(root);
    return _shownRows;
}

GV_UiNode* GV_GraphUiInfo::getVisibleNode(GV_UiNode* node, int row) const
{
    if (node == rootUiNode())
        return shownRows().nodeAtRow(row);
    GV_ShownRows rows;
    rows.rebuild(node);
    return rows.nodeAtRow(row);
}

bool GV_GraphUiInfo::getNodeSelectionInfo(const Math::Vector2d& point, int& graphIx,
                                          GV_UiNode*& node, GV_UiNode::eSelectionType& type) const
{
    node = nullptr;
    if (_graphs.empty())
        return false;
    const int column = cellIndex(point.x, headerPitch);
    const int row = cellIndex(point.y, rowPitch);
    if (row < 0)
        return false;
    if (row > 0) {
        if (_visibleGraphIx < 0 || column < _visibleGraphIx)
            return false;
        graphIx = _visibleGraphIx;
        node = getVisibleNode(rootUiNode(), row);
    } else {
        if (column < 0 || column >= static_cast<int>(_graphs.size()))
            return false;
        graphIx = column;
        node = _graphs[column].rootNode;
    }
    if (!node)
        return false;
    type = cellPartAt(node, point.x - graphIx * headerPitch, point.y);
    return true;
}
