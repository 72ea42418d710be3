// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include <QGraphicsView>
#include <memory>

class GV_GraphXMainItem;
class GV_GraphXViewCtrl;
class GV_GraphXViewQt;
class GV_OverviewItem;
class QGraphicsRectItem;

/// The overview of a graph view: the whole graph scaled to fit, and on it the area that the view
/// shows as a rectangle. Dragging in it moves that area. Owned by the frame that it is put into.
class SUBNODEVIEWS_EXPORT GV_GraphXNavigatorQt : public QGraphicsView
{
    Q_OBJECT

public:
    /// Neither is owned; both must outlive the navigator.
    GV_GraphXNavigatorQt(GV_GraphXViewQt* mainView, GV_GraphXViewCtrl* controller);
    ~GV_GraphXNavigatorQt() override;

    /// The item that draws the graph; never null.
    GV_GraphXMainItem* mainItem() const;

    /// Takes the visible area, in model units, and fits graph and area into the navigator. One that
    /// is too small to show anything keeps what it has.
    void updateMatrix(const QRectF& visibleArea);
    /// Repaints the graph if it looks different by now.
    void refresh();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    GV_GraphXViewQt* _mainView;
    std::unique_ptr<QGraphicsScene> _scene;
    GV_OverviewItem* _item;
    QGraphicsRectItem* _visibleAreaItem;
    float _scale = 1.0F;
    QPoint _lastPosition;
};
