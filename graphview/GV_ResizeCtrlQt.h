// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QWidget>

/// A grip at the edge of a frame: dragging it resizes the frame, which is its parent.
class SUBNODEVIEWS_EXPORT GV_ResizeCtrlQt : public QWidget
{
    Q_OBJECT

public:
    /// Which directions a drag changes. A grip on the top or the left is inverted: there the frame
    /// grows against the direction of the drag.
    struct Directions
    {
        bool vertical = false;
        bool horizontal = false;
        bool invertsVertical = false;
        bool invertsHorizontal = false;
    };

    GV_ResizeCtrlQt(QWidget* frame, const Directions& directions);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool _dragging = false;
    bool _resizesVertically;
    bool _resizesHorizontally;
    bool _invertsVertical;
    bool _invertsHorizontal;
    QSize _startSize;
    QPoint _startPosition;
};
