// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphVisitor.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_LayoutGrid.h"
#include "graphview/GV_RowRange.h"
#include "graphview/GV_SelectionModifier.h"
#include "graphview/GV_UiHeaderNode.h"
#include "graphview/GV_UiSgNode.h"
#include "host/models/AT_ModelNodeKey.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "host/selection/SL_SelectionUtil.h"

#include <QRectF>
#include <algorithm>

using namespace GV_LayoutGrid;

namespace {

/// Collects the key nodes and the headers whose boxes the marquee touches, if only at an edge.
class MarqueeSelector : public GV_VisibleTreeVisitor, public GV_HeaderVisitor
{
public:
    /// The rectangle must outlive the selector; the offset is that of the shown tree, in x.
    MarqueeSelector(const Math::Rect2d& rect, std::int32_t offset)
        : _rect(&rect)
        , _offset(offset)
    {
    }

    using GV_VisibleTreeVisitor::visit;
    void visit(GV_UiHeaderNode* node) override
    {
        if (node->isEditable() && touches(node->graphIx() * headerPitch, 0))
            _headers.insert(node);
    }
    void visit(GV_UiSgNode* node) override
    {
        // A node that is folded away has no column.
        if (node->isEditable() && node->column() >= 0 &&
            touches(_offset + node->column() * indent, node->row() * rowPitch))
            _nodes.insert(node);
    }

    const std::set<GV_UiHeaderNode*>& headers() const { return _headers; }
    const std::set<GV_UiSgNode*>& nodes() const { return _nodes; }

private:
    bool touches(double x, double y) const
    {
        return _rect->bottom >= y && _rect->top <= y + boxHeight && _rect->left <= x + boxWidth &&
               x <= _rect->right;
    }

    const Math::Rect2d* _rect;
    std::int32_t _offset;
    std::set<GV_UiHeaderNode*> _headers;
    std::set<GV_UiSgNode*> _nodes;
};

/// Lets the selector visit the shown nodes that the marquee can touch.
void visitRows(const GV_ShownRows& rows, const Math::Rect2d& rect, MarqueeSelector& selector)
{
    const std::vector<GV_UiNode*>& nodes = rows.nodes();
    const GV_RowRange all{0, static_cast<int>(nodes.size()) - 1};
    const QRectF area(QPointF(0.0, rect.top), QPointF(0.0, rect.bottom));
    const GV_RowRange range = all.within(area);
    for (int row = range.first; row <= range.last; ++row)
        nodes[row]->accept(static_cast<GV_VisibleTreeVisitor&>(selector));
}

bool standFor(const std::set<GV_UiHeaderNode*>& headers, const MO_ElementModule* element)
{
    return element && std::ranges::any_of(headers, [element](const GV_UiHeaderNode* header) {
               return header->model() == element;
           });
}

} // namespace

void GV_GraphXViewCtrl::onMarqueeRelease()
{
    const int graphIx = _uiInfo->visibleGraphIx();
    const Math::Rect2d rect = _view->marqueeRect();
    MarqueeSelector selector(rect, graphIx * headerPitch);
    // What is laid out stands in rows, and nothing else can be touched.
    if (const GV_ShownRows& rows = _uiInfo->shownRows(); rows.isLaidOut())
        visitRows(rows, rect, selector);
    else
        _uiInfo->accept(static_cast<GV_VisibleTreeVisitor&>(selector));
    _uiInfo->accept(static_cast<GV_HeaderVisitor&>(selector));
    if (selector.headers().empty() && selector.nodes().empty())
        _view->refreshView();
    else
        onMarqueeSelect(graphIx, selector.headers(), selector.nodes());
}

bool GV_GraphXViewCtrl::onMarqueeSelect(int graphIx, const std::set<GV_UiHeaderNode*>& headers,
                                        const std::set<GV_UiSgNode*>& nodes)
{
    const bool extend = GV_isExtendingSelection();
    MO_ElementModule* element = _uiInfo->modelNode(graphIx);
    SL_Selection* selection = _sessionContext->selection();
    const SL_Selection::BatchSelectionModeScope scope(selection);
    if (extend) {
        for (const GV_UiHeaderNode* header : headers)
            SL_SelectionUtil::addToSelection(selection, header->model());
        SL_SelectionUtil::addToSelection(selection, element);
        SLB_NodeInterface* selected = element ? element->selInterface() : nullptr;
        for (const GV_UiSgNode* node : nodes) {
            int id = 0;
            if (selected && element->getSelIdForNodeKey(AT_ModelNodeKey(node->name()), id) &&
                !selected->isSubSelected(id))
                selected->subSelect(id, true);
        }
    } else {
        std::set<int> pickIds;
        buildPickIdsFromUiSgNode(element, nodes, pickIds);
        SL_SelectionUtil::clear(selection);
        const bool keepShown = !nodes.empty() || standFor(headers, element);
        if (keepShown)
            SL_SelectionUtil::addToSelection(selection, element);
        for (const GV_UiHeaderNode* header : headers) {
            if (header->model() != element)
                SL_SelectionUtil::addToSelection(selection, header->model());
        }
        if (SLB_NodeInterface* selected = element ? element->selInterface() : nullptr) {
            for (const int id : pickIds)
                selected->subSelect(id, true);
        }
    }
    UpdateFromSelection(selection);
    _view->refreshView();
    return true;
}
