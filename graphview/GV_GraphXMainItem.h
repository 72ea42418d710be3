// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "graphview/GV_DrawnCells.h"

#include <QColor>
#include <QGraphicsItem>
#include <QPen>
#include <vector>

class GV_GraphXViewCtrl;
class GV_ShownRows;
class GV_UiNode;

/// Paints the whole graph: the row of headers, and below the active one its tree with the lines
/// that join it and the controls that fold it. It reads the nodes through the controller and owns
/// none. The item of the main view leaves out boxes that are out of view; that of an overview
/// draws everything. The scene owns the item.
class SUBNODEVIEWS_EXPORT GV_GraphXMainItem : public QGraphicsItem
{
public:
    /// The controller is not owned and must outlive the item's painting.
    GV_GraphXMainItem(GV_GraphXViewCtrl* controller, bool drawEverything);
    ~GV_GraphXMainItem() override;

    /// From the origin, the far corner of what is drawn; in model units.
    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    /// Takes the line colour and the font name from the preferences; true when one changed.
    bool loadPreferences();
    /// To be called before the extent of the graph changes.
    void prepareGeometryChange();
    /// The area outside which boxes need not be drawn.
    void setViewRectInModelCoord(const QRectF& rect);

protected:
    GV_GraphXViewCtrl* controller() const { return _controller; }
    QColor boxColor(const GV_UiNode* node) const;

private:
    /// Lets shapes be left out that others have covered, where that is possible and worth it.
    void startDrawnCells();
    void drawHeaderNodes(std::vector<const GV_UiNode*>& headers);
    void drawNodes(const GV_ShownRows& rows);
    void drawNode(const GV_UiNode* node);
    void drawLabel(const GV_UiNode* node, const QRectF& rect);
    void drawLines(const GV_ShownRows& rows);
    void drawLinesToChildren(const GV_UiNode* node);
    void drawLineFromParent(const GV_UiNode* node);
    void drawSpine(const GV_UiNode* node);
    void drawCollapsingControl(int column, int row, bool collapsed);

    bool isOutOfView(const QRectF& box) const;
    float boxX(const GV_UiNode* node) const;
    float controlX(int column) const;

    GV_GraphXViewCtrl* _controller;
    bool _drawEverything;
    QRectF _viewRect;
    QPainter* _painter = nullptr;
    QPen _normalPen;
    QPen _textPen;
    int _activeHeaderIx = -1;
    float _offset = 0.0F;
    float _levelOfDetail = 0.0F;
    bool _drawText = false;
    GV_DrawnCells _drawnBoxes;
    GV_DrawnCells _drawnSpines;
    GV_DrawnCells _drawnLines;
    GV_DrawnCells _drawnOpenControls;
    GV_DrawnCells _drawnClosedControls;

    static QColor __networkLineColor;
    static QString __fontName;
};
