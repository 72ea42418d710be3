// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_LayoutGrid.h"
#include "graphview/GV_TreeWalk.h"
#include "host/scene/MO_ElementModule.h"

#include <algorithm>
#include <limits>

using namespace GV_LayoutGrid;

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

/// a * factor + offset, wrapping around as 32-bit numbers do. The bounds of a selection without a
/// header, or without a tree node, are the extreme numbers and rely on it.
int wrapped(int a, int factor, int offset)
{
    return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(factor) +
                            static_cast<unsigned>(offset));
}

} // namespace

void GV_GraphUiInfo::clearSelection(bool keepHeaderNodes)
{
    SelectedNodeMap kept(_initialBuckets);
    if (keepHeaderNodes) {
        for (const auto& [key, node] : _selectedNodes) {
            if (node && node->isHeaderNode())
                kept.emplace(key, node);
        }
    }
    _selectedNodes = std::move(kept);
    ++_selectionRevision;
}

bool GV_GraphUiInfo::setFirstNodeSelected(GV_UiNode* node)
{
    GV_TreeWalk walk(node);
    while (const GV_UiNode* candidate = walk.next()) {
        if (candidate->isEditable()) {
            _selectedNodes[GV_UiNodeKey(candidate)] = candidate;
            ++_selectionRevision;
            return true;
        }
    }
    return false;
}

bool GV_GraphUiInfo::setFirstNodeWithNameSelected(const QString& name)
{
    GV_UiNode* root = rootUiNode();
    if (!root || !root->hasChildren())
        return false;
    return setFirstNodeWithNameSelected(root, name);
}

bool GV_GraphUiInfo::setFirstNodeWithNameSelected(GV_UiNode* start, const QString& name)
{
    const GV_UiNode* node = _nameIndex.firstNodeBelow(start, name);
    if (!node)
        return false;
    _selectedNodes[GV_UiNodeKey(node)] = node;
    ++_selectionRevision;
    return true;
}

bool GV_GraphUiInfo::setHeaderNodeSelected(MO_ElementModule* element)
{
    // A header whose element is gone has a null element, too.
    if (!element)
        return false;
    const auto it = std::find_if(_graphs.begin(), _graphs.end(), [element](const GraphInfo& info) {
        return info.model.get() == element;
    });
    return it != _graphs.end() && setFirstNodeSelected(it->rootNode);
}

bool GV_GraphUiInfo::isSubNodeSelected(const GV_UiNode* node) const
{
    return _selectedNodes.contains(GV_UiNodeKey(node));
}

bool GV_GraphUiInfo::rectSelection(std::set<GV_UiNode*>&, const Math::Rect2d&)
{
    return false;
}

bool GV_GraphUiInfo::calculateSelectionCounts(int& minHeader, int& maxHeader, int& minRow,
                                              int& maxRow, int& maxColumn) const
{
    minHeader = minRow = largest;
    maxHeader = maxRow = maxColumn = smallest;
    bool headerFound = false;
    for (const auto& [key, node] : _selectedNodes) {
        if (!node)
            continue;
        if (!node->isHeaderNode()) {
            minRow = std::min(minRow, node->row());
            maxRow = std::max(maxRow, node->row());
            maxColumn = std::max(maxColumn, node->column());
            continue;
        }
        const auto it =
            std::find_if(_graphs.begin(), _graphs.end(), [wanted = node](const GraphInfo& info) {
                return info.rootNode == wanted;
            });
        if (it != _graphs.end()) {
            const int ix = static_cast<int>(it - _graphs.begin());
            minHeader = std::min(minHeader, ix);
            maxHeader = std::max(maxHeader, ix);
            headerFound = true;
        }
    }
    return headerFound || (minRow != largest && maxRow != smallest && maxColumn != smallest);
}

Math::Rect2d GV_GraphUiInfo::calculateSelectionRect(int minHeader, int maxHeader, int minRow,
                                                    int maxRow, int maxColumn)
{
    const int left = wrapped(minHeader, headerPitch, 0);
    int right = wrapped(maxHeader, headerPitch, boxWidth);
    if (_visibleGraphIx >= 0) {
        const int treeLeft = wrapped(_visibleGraphIx, headerPitch, boxWidth);
        right = std::max(right, wrapped(maxColumn, indent, treeLeft));
    }
    int top = 0;
    int bottom = boxHeight;
    if (maxRow >= 0) {
        bottom = wrapped(maxRow, rowPitch, boxHeight);
        if (minHeader == maxHeader)
            top = wrapped(minRow, rowPitch, 0);
    }
    return {static_cast<double>(left), static_cast<double>(top),
            static_cast<double>(wrapped(right, 1, -1)),
            static_cast<double>(wrapped(bottom, 1, -1))};
}

Math::Rect2d GV_GraphUiInfo::selectionRect()
{
    int minHeader = 0;
    int maxHeader = 0;
    int minRow = 0;
    int maxRow = 0;
    int maxColumn = 0;
    if (!calculateSelectionCounts(minHeader, maxHeader, minRow, maxRow, maxColumn))
        return {};
    return calculateSelectionRect(minHeader, maxHeader, minRow, maxRow, maxColumn);
}
