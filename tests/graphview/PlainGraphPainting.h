// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPen>
#include <QRectF>
#include <optional>

class GV_GraphXViewCtrl;
class GV_UiNode;
class QPainter;

/// The painting of a graph in its plainest form: it visits every shown node by recursion and
/// spells out every number. What the painting item does faster has to come to the same.
class PlainGraphPainting
{
public:
    /// Boxes outside the rectangle are left out; without one everything is drawn.
    PlainGraphPainting(const GV_GraphXViewCtrl& controller, const std::optional<QRectF>& viewRect,
                       const QColor& lineColor = QColor(255, 255, 255));

    void paint(QPainter& painter);

private:
    void header(int index, const GV_UiNode* node);
    void box(const GV_UiNode* node);
    void label(const GV_UiNode* node, const QRectF& rect);
    void linesToChildren(const GV_UiNode* node);
    void control(int column, int row, bool collapsed);

    bool isLeftOut(const QRectF& box) const;
    QColor boxColor(const GV_UiNode* node) const;

    const GV_GraphXViewCtrl& _controller;
    std::optional<QRectF> _viewRect;
    QColor _lineColor;
    QPainter* _painter = nullptr;
    QPen _normalPen;
    QPen _textPen;
    float _offset = 0;
    bool _drawText = false;
};
