// SPDX-License-Identifier: MIT

#include "graphview/GV_OverviewItem.h"

#include "graphview/GV_AppearanceRevision.h"
#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_LayoutGrid.h"

#include <QGraphicsView>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// A box less than a pixel high is all outline: its filling, and with it its colour, is covered.
bool showsBoxColors(const QTransform& transform, qreal pixelRatio)
{
    return transform.m22() * pixelRatio * GV_LayoutGrid::boxHeight >= 1.0;
}

/// Up to this many rows the graph is drawn again as soon as it moves at all.
constexpr std::size_t fewRows = 2000;
/// What the raster engine can tell apart, in pixels.
constexpr double resolution = 1.0 / 64.0;

double distance(const QPointF& a, const QPointF& b)
{
    return std::max(std::abs(a.x() - b.x()), std::abs(a.y() - b.y()));
}

} // namespace

GV_OverviewItem::GV_OverviewItem(GV_GraphXViewCtrl* controller)
    : GV_GraphXMainItem(controller, true)
{
}

GV_OverviewItem::~GV_OverviewItem() = default;

GV_OverviewItem::Look GV_OverviewItem::lookAt(const Place& place) const
{
    const GV_GraphUiInfo* uiInfo = controller()->uiInfo();
    Look look;
    look.tree = GV_UiNode::treeRevision();
    look.layout = GV_UiNode::layoutRevision();
    look.editable = GV_UiNode::editableRevision();
    look.appearance = GV_AppearanceRevision::current();
    look.graphs = uiInfo->graphsRevision();
    look.openElement = uiInfo->visibleGraphModelNode();
    if (showsBoxColors(place.transform, place.pixelRatio)) {
        look.selection = uiInfo->selectionRevision();
        look.settings = controller()->settingsRevision();
    }
    std::vector<const GV_UiNode*> headers;
    uiInfo->headerNodes(headers);
    for (const GV_UiNode* header : headers)
        look.headerColors.push_back(boxColor(header).rgba());
    return look;
}

bool GV_OverviewItem::fits(const Place& place) const
{
    if (_picture.isNull() || place.size != _place.size || place.pixelRatio != _place.pixelRatio ||
        place.background != _place.background || place.base != _place.base)
        return false;
    if (place.transform == _place.transform)
        return true;
    // The visible area takes part in the fit, so a pan that leaves the graph moves all of it by a
    // trifle. In a large graph, that is less than the raster engine resolves.
    if (controller()->uiInfo()->shownRows().nodes().size() <= fewRows)
        return false;
    const QRectF extent = boundingRect();
    const double moved = std::max(
        distance(place.transform.map(extent.topLeft()), _place.transform.map(extent.topLeft())),
        distance(place.transform.map(extent.bottomRight()),
                 _place.transform.map(extent.bottomRight())));
    return moved * place.pixelRatio < resolution;
}

bool GV_OverviewItem::isOutdated() const
{
    return _look != lookAt(_place);
}

void GV_OverviewItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                            QWidget* widget)
{
    const auto* view = widget ? qobject_cast<QGraphicsView*>(widget->parentWidget()) : nullptr;
    if (!view) {
        GV_GraphXMainItem::paint(painter, option, widget);
        return;
    }
    const Place place{painter->worldTransform(), widget->size(), widget->devicePixelRatio(),
                      view->backgroundBrush(), widget->palette().color(widget->backgroundRole())};
    if (Look look = lookAt(place); look != _look || !fits(place)) {
        _place = place;
        _look = std::move(look);
        draw(*painter, option, widget);
    }
    painter->save();
    painter->resetTransform();
    painter->drawPixmap(QPointF(0, 0), _picture);
    painter->restore();
}

void GV_OverviewItem::draw(const QPainter& target, const QStyleOptionGraphicsItem* option,
                           QWidget* widget)
{
    ++_drawCount;
    // On the very background that it will be shown on, so that whatever is translucent or smoothed
    // comes out as it would there.
    _picture = QPixmap(_place.size * _place.pixelRatio);
    _picture.setDevicePixelRatio(_place.pixelRatio);
    _picture.fill(_place.base);
    QPainter painter(&_picture);
    painter.fillRect(QRect(QPoint(0, 0), _place.size), _place.background);
    painter.setRenderHints(target.renderHints());
    painter.setFont(target.font());
    painter.setPen(target.pen());
    painter.setBrush(target.brush());
    painter.setTransform(_place.transform);
    GV_GraphXMainItem::paint(&painter, option, widget);
}
