// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXMainItem.h"

#include "graphview/GV_AppearanceRevision.h"
#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_LayoutGrid.h"
#include "graphview/GV_PaintReach.h"
#include "graphview/GV_RowRange.h"
#include "host/preferences/PR_Preference.h"

#include <QCoreApplication>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>

using namespace GV_LayoutGrid;

namespace {

constexpr unsigned int networkLineRgba = 0xffffffff;

constexpr int headerCornerRadius = 6;
constexpr float labelIndent = 6.0F;
constexpr float labelTop = 3.0F;
constexpr float labelHeight = 18.0F;

/// Half the length of the bars of the plus and minus signs.
constexpr float barReach = 2.5F;
/// From the top of a box to where the lines meet it: the middle, on a pixel centre.
constexpr float lineTop = 12.5F;
/// From the top of a box to the first pixel below its control.
constexpr int spineTop = controlCentreY + controlRadius;

/// Rows closer together than this, in pixels, may fall on the same spots.
constexpr double smallestRow = 1.0 / 64.0;

/// Names are drawn above the first level of detail, and are fully black from the second one on.
constexpr float textLevel = 0.125F;
constexpr float blackTextLevel = 0.625F;

const QString& defaultFontName()
{
    static const QString name = QStringLiteral("Courier");
    return name;
}

/// One pixel wide at every zoom.
QPen hairline(const QColor& color)
{
    return QPen(color, 0.0);
}

float rowY(int row)
{
    return static_cast<float>(row * rowPitch);
}

int textGrey(float levelOfDetail)
{
    if (levelOfDetail >= blackTextLevel)
        return 0;
    return static_cast<int>((0.5F - (levelOfDetail - textLevel)) * 255.0F) & 0xff;
}

const GV_UiNode* lastChild(const GV_UiNode* node)
{
    return *(node->childrenEnd() - 1);
}

} // namespace

QColor GV_GraphXMainItem::__networkLineColor = QColor(255, 255, 255, 255);
QString GV_GraphXMainItem::__fontName = defaultFontName();

GV_GraphXMainItem::GV_GraphXMainItem(GV_GraphXViewCtrl* controller, bool drawEverything)
    : _controller(controller)
    , _drawEverything(drawEverything)
{
}

GV_GraphXMainItem::~GV_GraphXMainItem() = default;

QRectF GV_GraphXMainItem::boundingRect() const
{
    // The graph always starts at the origin, so its far corner is its size.
    const Math::Box2di box = _controller->uiInfo()->boundingRect();
    return QRectF(box.x1(), box.y1(), box.x2(), box.y2());
}

bool GV_GraphXMainItem::loadPreferences()
{
    const PR_Preference* preferences = PR_Preference::instance();
    bool changed = false;
    const QColor lineColor = QColor::fromRgba(
        preferences->getRgbaValue(QStringLiteral("ST_3DNODEVIEW_NETWORK_COLOR"), networkLineRgba));
    if (lineColor != __networkLineColor) {
        __networkLineColor = lineColor;
        changed = true;
    }
    const QString fontName =
        preferences->getFontValue(QStringLiteral("ST_3DNODEVIEW_FONT"), defaultFontName());
    if (fontName != __fontName) {
        __fontName = fontName;
        changed = true;
    }
    if (changed)
        GV_AppearanceRevision::advance();
    return changed;
}

void GV_GraphXMainItem::prepareGeometryChange()
{
    QGraphicsItem::prepareGeometryChange();
}

void GV_GraphXMainItem::setViewRectInModelCoord(const QRectF& rect)
{
    _viewRect = rect;
}

void GV_GraphXMainItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    _painter = painter;
    _normalPen = painter->pen();
    _normalPen.setCosmetic(true);
    _levelOfDetail = static_cast<float>(
        QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform()));
    _drawText = _levelOfDetail > textLevel;
    const int grey = textGrey(_levelOfDetail);
    _textPen = hairline(QColor(grey, grey, grey, 255));

    const QFont savedFont = painter->font();
    painter->setFont(GV_GraphUiInfo::font());

    const GV_GraphUiInfo* uiInfo = _controller->uiInfo();
    std::vector<const GV_UiNode*> headers;
    const int activeIx = uiInfo->headerNodes(headers);
    if (!headers.empty()) {
        if (activeIx >= 0) {
            _activeHeaderIx = activeIx;
            _offset = static_cast<float>(activeIx * headerPitch);
            startDrawnCells();
            const QColor savedColor = painter->pen().color();
            painter->setPen(hairline(__networkLineColor));
            drawLines(uiInfo->shownRows());
            painter->setPen(hairline(savedColor));
        }
        // The boxes cover the ends of the lines, so they come after them.
        drawHeaderNodes(headers);
        if (activeIx >= 0)
            drawNodes(uiInfo->shownRows());
    }

    painter->setFont(savedFont);
    _offset = 0.0F;
    _activeHeaderIx = -1;
    _painter = nullptr;
}

void GV_GraphXMainItem::startDrawnCells()
{
    const QTransform toPixels = _painter->deviceTransform();
    const bool enabled =
        _drawEverything && GV_paintReach(*_painter) && toPixels.type() <= QTransform::TxScale &&
        std::abs(toPixels.m22()) * rowPitch < smallestRow &&
        !_painter->testRenderHint(QPainter::Antialiasing) && _painter->opacity() == 1.0;
    // A translucent line is denser where others lie below it. Boxes this small are all outline.
    const bool opaqueLines = enabled && __networkLineColor.alpha() == 255;
    _drawnBoxes.start(enabled, toPixels);
    for (GV_DrawnCells* cells :
         {&_drawnSpines, &_drawnLines, &_drawnOpenControls, &_drawnClosedControls})
        cells->start(opaqueLines, toPixels);
}

float GV_GraphXMainItem::boxX(const GV_UiNode* node) const
{
    return static_cast<float>(node->column() * indent) + _offset;
}

float GV_GraphXMainItem::controlX(int column) const
{
    return (static_cast<float>(column) + 0.5F) * indent + _offset + 0.5F;
}

bool GV_GraphXMainItem::isOutOfView(const QRectF& box) const
{
    return !_drawEverything && !box.intersects(_viewRect);
}

QColor GV_GraphXMainItem::boxColor(const GV_UiNode* node) const
{
    const bool hidden = _controller->nodeHasState(GV_GraphXViewCtrl::eHidden, node);
    return _controller->uiInfo()->getColor(GV_UiNode::eBox, node, hidden);
}

void GV_GraphXMainItem::drawHeaderNodes(std::vector<const GV_UiNode*>& headers)
{
    _painter->setPen(hairline(QColor(0, 0, 0, 255)));
    for (std::size_t i = 0; i < headers.size(); ++i) {
        const float x = static_cast<float>(i * headerPitch);
        const QRectF box(x, 0.0, boxWidth, boxHeight);
        if (isOutOfView(box))
            continue;
        _painter->setBrush(boxColor(headers[i]));
        _painter->drawRoundedRect(box, headerCornerRadius, headerCornerRadius, Qt::AbsoluteSize);
        drawLabel(headers[i], QRectF(x + labelIndent, labelTop, labelWidth, labelHeight));
    }
}

void GV_GraphXMainItem::drawNodes(const GV_ShownRows& rows)
{
    const std::vector<GV_UiNode*>& nodes = rows.nodes();
    // Rows run down the page in order, so those in view are next to each other.
    GV_RowRange range{1, static_cast<int>(nodes.size()) - 1};
    if (!_drawEverything && rows.isInOrder())
        range = range.within(_viewRect.normalized());
    for (int row = range.first; row <= range.last; ++row)
        drawNode(nodes[row]);
}

void GV_GraphXMainItem::drawNode(const GV_UiNode* node)
{
    const float x = boxX(node);
    const float y = rowY(node->row());
    const QRectF box(x, y, boxWidth, boxHeight);
    if (isOutOfView(box) || !_drawnBoxes.isNew(box))
        return;
    _painter->setPen(hairline(QColor(0, 0, 0, 255)));
    _painter->setBrush(boxColor(node));
    _painter->drawRect(box);
    drawLabel(node, QRectF(x + labelIndent, y + labelTop, labelWidth, labelHeight));
}

void GV_GraphXMainItem::drawLabel(const GV_UiNode* node, const QRectF& rect)
{
    if (!_drawText)
        return;
    QString label = node->label();
    if (label.isEmpty())
        label = QCoreApplication::translate("GraphXView", "no_name");
    _painter->setPen(_textPen);
    _painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, label);
    _painter->setPen(_normalPen);
}

void GV_GraphXMainItem::drawLines(const GV_ShownRows& rows)
{
    const std::vector<GV_UiNode*>& nodes = rows.nodes();
    GV_RowRange range{0, static_cast<int>(nodes.size()) - 1};
    if (rows.isInOrder()) {
        if (const std::optional<QRectF> reach = GV_paintReach(*_painter))
            range = range.within(*reach);
    }
    if (range.isEmpty())
        return;

    // A line that starts above the range and reaches into it belongs to an ancestor of the range's
    // first node: everything between a node and its last child is below that node.
    std::vector<const GV_UiNode*> ancestors;
    for (const GV_UiNode* node = nodes[range.first]->parent(); node && range.first > 0;
         node = node->parent()) {
        if (lastChild(node)->row() >= range.first)
            ancestors.push_back(node);
    }
    std::for_each(ancestors.rbegin(), ancestors.rend(),
                  [this](const GV_UiNode* node) { drawSpine(node); });

    for (int row = range.first; row <= range.last; ++row) {
        if (row > 0)
            drawLineFromParent(nodes[row]);
        drawLinesToChildren(nodes[row]);
    }
}

void GV_GraphXMainItem::drawLinesToChildren(const GV_UiNode* node)
{
    if (!node->hasChildren())
        return;
    drawCollapsingControl(node->column(), node->row(), node->isCollapsed());
    if (!node->isCollapsed())
        drawSpine(node);
}

void GV_GraphXMainItem::drawSpine(const GV_UiNode* node)
{
    const float x = controlX(node->column());
    const QPointF top(x, rowY(node->row()) + spineTop);
    const QPointF bottom(x, rowY(lastChild(node)->row()) + lineTop);
    if (_drawnSpines.isNew(QRectF(top, bottom)))
        _painter->drawLine(top, bottom);
}

void GV_GraphXMainItem::drawLineFromParent(const GV_UiNode* node)
{
    const float y = rowY(node->row()) + lineTop;
    const QPointF left(controlX(node->parent()->column()), y);
    const QPointF right(boxX(node) + 0.5F, y);
    if (_drawnLines.isNew(QRectF(left, right)))
        _painter->drawLine(left, right);
}

void GV_GraphXMainItem::drawCollapsingControl(int column, int row, bool collapsed)
{
    const float x = controlX(column);
    const float y = rowY(row) + controlCentreY;
    const QRectF circle(x - controlRadius, y - controlRadius, 2 * controlRadius, 2 * controlRadius);
    if (!(collapsed ? _drawnClosedControls : _drawnOpenControls).isNew(circle))
        return;
    _painter->drawEllipse(circle);
    _painter->drawLine(QPointF(x - barReach, y), QPointF(x + barReach, y));
    if (collapsed)
        _painter->drawLine(QPointF(x, y - barReach), QPointF(x, y + barReach));
}
