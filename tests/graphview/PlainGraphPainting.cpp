// SPDX-License-Identifier: MIT

#include "tests/graphview/PlainGraphPainting.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"

#include <QCoreApplication>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace {

QPen hairline(const QColor& color)
{
    return QPen(color, 0);
}

} // namespace

PlainGraphPainting::PlainGraphPainting(const GV_GraphXViewCtrl& controller,
                                       const std::optional<QRectF>& viewRect,
                                       const QColor& lineColor)
    : _controller(controller)
    , _viewRect(viewRect)
    , _lineColor(lineColor)
{
}

void PlainGraphPainting::paint(QPainter& painter)
{
    _painter = &painter;
    _normalPen = painter.pen();
    _normalPen.setCosmetic(true);
    const float level = static_cast<float>(
        QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter.worldTransform()));
    _drawText = level > 0.125F;
    const int grey =
        level >= 0.625F ? 0 : static_cast<int>((0.5F - (level - 0.125F)) * 255.0F) % 256;
    _textPen = hairline(QColor(grey, grey, grey));

    const QFont font = painter.font();
    painter.setFont(GV_GraphUiInfo::font());
    std::vector<const GV_UiNode*> headers;
    const int active = _controller.uiInfo()->headerNodes(headers);
    if (active >= 0) {
        _offset = static_cast<float>(active) * 160.0F;
        painter.setPen(hairline(_lineColor));
        linesToChildren(headers[active]);
    }
    painter.setPen(hairline(QColor(0, 0, 0)));
    for (int i = 0; i < static_cast<int>(headers.size()); ++i)
        header(i, headers[i]);
    if (active >= 0 && !headers[active]->isCollapsed()) {
        for (auto it = headers[active]->childrenBegin(); it != headers[active]->childrenEnd(); ++it)
            box(*it);
    }
    painter.setFont(font);
}

void PlainGraphPainting::header(int index, const GV_UiNode* node)
{
    const float x = static_cast<float>(index) * 160.0F;
    const QRectF rect(x, 0, 136, 24);
    if (isLeftOut(rect))
        return;
    _painter->setBrush(QBrush(boxColor(node), Qt::SolidPattern));
    _painter->drawRoundedRect(rect, 6, 6, Qt::AbsoluteSize);
    label(node, QRectF(x + 6.0F, 3, 124, 18));
}

void PlainGraphPainting::box(const GV_UiNode* node)
{
    const float x = static_cast<float>(node->column()) * 24.0F + _offset;
    const float y = static_cast<float>(node->row() * 34);
    const QRectF rect(x, y, 136, 24);
    if (!isLeftOut(rect)) {
        _painter->setPen(hairline(QColor(0, 0, 0)));
        _painter->setBrush(QBrush(boxColor(node), Qt::SolidPattern));
        _painter->drawRect(rect);
        label(node, QRectF(x + 6.0F, y + 3.0F, 124, 18));
    }
    if (node->isCollapsed())
        return;
    for (auto it = node->childrenBegin(); it != node->childrenEnd(); ++it)
        box(*it);
}

void PlainGraphPainting::label(const GV_UiNode* node, const QRectF& rect)
{
    if (!_drawText)
        return;
    const QString text = node->label().isEmpty()
                             ? QCoreApplication::translate("GraphXView", "no_name")
                             : node->label();
    _painter->setPen(_textPen);
    _painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, text);
    _painter->setPen(_normalPen);
}

void PlainGraphPainting::linesToChildren(const GV_UiNode* node)
{
    if (!node->hasChildren())
        return;
    control(node->column(), node->row(), node->isCollapsed());
    if (node->isCollapsed())
        return;
    const float x = (static_cast<float>(node->column()) + 0.5F) * 24.0F + _offset + 0.5F;
    const GV_UiNode* last = *(node->childrenEnd() - 1);
    _painter->drawLine(QPointF(x, static_cast<float>(node->row() * 34) + 33.0F),
                       QPointF(x, static_cast<float>(last->row() * 34) + 12.5F));
    for (auto it = node->childrenBegin(); it != node->childrenEnd(); ++it) {
        const GV_UiNode* child = *it;
        const float y = static_cast<float>(child->row() * 34) + 12.5F;
        const float end = static_cast<float>(child->column()) * 24.0F + _offset + 0.5F;
        _painter->drawLine(QPointF(x, y), QPointF(end, y));
        linesToChildren(child);
    }
}

void PlainGraphPainting::control(int column, int row, bool collapsed)
{
    const float x = (static_cast<float>(column) + 0.5F) * 24.0F + _offset + 0.5F;
    const float y = static_cast<float>(row * 34) + 29.0F;
    _painter->drawEllipse(QRectF(x - 4.0F, y - 4.0F, 8, 8));
    _painter->drawLine(QPointF(x - 2.5F, y), QPointF(x + 2.5F, y));
    if (collapsed)
        _painter->drawLine(QPointF(x, y - 2.5F), QPointF(x, y + 2.5F));
}

bool PlainGraphPainting::isLeftOut(const QRectF& box) const
{
    return _viewRect && !box.intersects(*_viewRect);
}

QColor PlainGraphPainting::boxColor(const GV_UiNode* node) const
{
    const bool hidden = _controller.nodeHasState(GV_GraphXViewCtrl::eHidden, node);
    return _controller.uiInfo()->getColor(GV_UiNode::eBox, node, hidden);
}
