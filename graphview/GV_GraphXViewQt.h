// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "host/actions/AC_ActionInfo.h"
#include "host/geometry/Point2d.h"
#include "host/geometry/Rect2d.h"
#include "host/geometry/Vector2d.h"
#include "host/layout/TUCanvasViewLayoutView.h"
#include "host/scene/TUNodeSet.h"
#include "host/scene/TUScene.h"

#include <QColor>
#include <memory>

class GV_GraphXMainItem;
class GV_GraphXNavigatorQt;
class GV_GraphXViewCtrl;
class GV_WorldViewQt;
class QGraphicsRectItem;
class QGraphicsScene;
class SC_SessionContext;

/// The panel of the graph view: a canvas with a header for each 3D model element of the scene and
/// the tree of the visible one, and in one of its corners an overview to navigate by. It keeps its
/// own zoom and pan, by which screen = zoom factor * model + pan holds exactly, in pixels of the
/// viewport; the canvas' own scrolling stays out of it. Gestures and actions go to the controller.
///
/// Construct it, construct its controller, then call init() before it is shown.
class SUBNODEVIEWS_EXPORT GV_GraphXViewQt : public TUCanvasViewLayoutView
{
    Q_OBJECT

public:
    /// The gesture under way between a press and its release.
    enum eMouseAction
    {
        eMouseNone = 0,
        eMouseFreePanAndZoom = 1,
        /// The press itself did everything.
        eMouseHandled = 2,
        eMouseMarquee = 3
    };

    /// Neither the manager nor the session is owned; the session must outlive the panel.
    GV_GraphXViewQt(AC_Manager* manager, QWidget* parent, SC_SessionContext* session);
    ~GV_GraphXViewQt() override;

    /// Takes ownership of the controller and shows what is selected in the host.
    void init(GV_GraphXViewCtrl* controller);

    TULayoutView* clone(QWidget* parent) const override;
    bool hasMenu() override;

    /// @name Parts of the panel, which it owns; null before init()
    /// @{
    GV_GraphXMainItem* mainItem() const { return _mainItem; }
    GV_GraphXViewCtrl* controller() const { return _controller.get(); }
    GV_GraphXNavigatorQt* navigator() const { return _navigator; }
    GV_WorldViewQt* worldView() const { return _worldView; }
    /// @}

    /// Between the pixels of the viewport and model units.
    Math::Point2d screenToModel(const Math::Point2d& point) const;
    Math::Point2d modelToScreen(const Math::Point2d& point) const;

    /// Moves the visible area by a distance in model units.
    void handleNavigatorPan(const Math::Vector2d& distance);

    /// Announces that the extent of the graph changes, or has changed from the given one.
    void prepareGeometryChange();
    void prepareGeometryChange(const QRectF& before);
    /// Repaints the graph.
    void refreshView();
    /// To be called when the extent of the graph or the visible area changed.
    void updateNavigatorMatrix();

public slots:
    void onActionZoomIn();
    void onActionZoomOut();
    void onActionResetZoom();
    void onActionResetPan();
    void onActionResetView();
    void selectAll();
    void deselect();
    /// Brings what is selected into view.
    void onActionFrameSelected();
    void onActionFrameSelectedValidate(AC_ActionInfo* info);
    /// Between key nodes and every node. Menus and shortcuts are bound to this spelling.
    void onActionToggleDislayMode();
    void onActionToggleDislayModeValidate(AC_ActionInfo* info);
    void onActionShowNodes();
    void onActionShowNodesValidate(AC_ActionInfo* info);
    void onActionHideNodes();
    void onActionHideNodesValidate(AC_ActionInfo* info);
    void onActionHideAllOtherNodes();
    void onActionHideAllOtherNodesValidate(AC_ActionInfo* info);
    void onActionCollapseAllNodes();
    void onActionCollapseAllNodesValidate(AC_ActionInfo* info);
    void onActionExpandAllNodes();
    void onActionExpandAllNodesValidate(AC_ActionInfo* info);
    void onActionShowHideWorldView();
    void onActionShowHideWorldViewValidate(AC_ActionInfo* info);
    /// 0 top left, 1 top right, 2 bottom left, 3 bottom right.
    void onActionMoveWorld(int corner);
    void onActionMoveWorldValidate(int corner, AC_ActionInfo* info);
    void nodesChanged(const TUNodeSet& nodes);
    void nodesNameChanged(const TUNodeSet& nodes);
    void networkChanged();
    GV_GraphXViewQt::eMouseAction mouseAction() const;
    /// The marquee in model units, its corners in order.
    Math::Rect2d marqueeRect() const;
    void onActionAnimateSubnode();
    void onActionAnimateSubnodeValidate(AC_ActionInfo* info);
    void onSelectionChanged();
    void onSubSelectionChanged();
    void onCurrentFrameChanged();
    void onCurrentSceneChanged(TUScene* scene);
    void onPreferenceChanged();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    /// Opens the popup menu where the event says.
    virtual void ContextMenuEvent(QContextMenuEvent* event);
    /// Takes colours and font from the preferences; true when one of them changed.
    bool loadPreferences();

private:
    void initCanvas();
    void initMarquee();
    void initWorldView();
    void connectNotifications();

    /// @name Coordinates
    /// @{
    void updateMatrix();
    QRectF viewRectInModelCoord() const;
    void boundZoomFactor();
    void calculateZoomingFactors(double contentExtent, double availableExtent);
    void setZoomLevel(int level);
    void resetZoom();
    void resetPan();
    void stampRefs(int x, int y);
    void handleZoom(const QPoint& position);
    /// Zooms about the point by as many levels as it would take pixels of dragging.
    void zoomAbout(const QPoint& position, int levels);
    void handlePan(const QPoint& position);
    void centerViewOnRect(Math::Rect2d& rect);
    void recenterOnSelectionNoZoom(Math::Rect2d& rect);
    void recenterOnSelectionWithZoom(Math::Rect2d& rect);
    /// @}

    /// @name Marquee
    /// @{
    void startMarquee();
    void endMarquee();
    bool handleMarquee(const QPoint& position);
    bool handleMarqueePan(const QPoint& position);
    Math::Vector2d marqueePanDisplacement() const;
    QRectF marqueeQRectF() const;
    void startMarqueePanTimer();
    void stopMarqueePanTimer();
    /// @}

    bool isFreePanAndZoomKeyHeld() const;
    bool isWorldViewShown() const;

    std::unique_ptr<GV_GraphXViewCtrl> _controller;
    std::unique_ptr<QGraphicsScene> _scene;
    SC_SessionContext* _sessionContext;
    GV_GraphXMainItem* _mainItem = nullptr;
    QGraphicsRectItem* _marqueeItem = nullptr;
    GV_GraphXNavigatorQt* _navigator = nullptr;
    GV_WorldViewQt* _worldView = nullptr;
    int _worldViewCorner = 0;

    eMouseAction _mouseAction = eMouseNone;
    int _heldButtons = 0;
    bool _openingContextMenu = false;
    bool _settingTransform = false;
    QPoint _lastPosition;

    int _marqueePanTimer = 0;
    int _zoomLevel = 0;
    int _startZoomLevel = 0;
    int _wheelDelta = 0;
    double _zoomFactor = 1.0;
    /// The screen point that a zoom keeps in place.
    Math::Point2d _anchor;
    /// The model point of the last press.
    Math::Vector2d _pressPoint;
    /// The screen position of the model's origin, now and when the gesture began.
    Math::Vector2d _pan;
    Math::Vector2d _referencePan;
    Math::Point2d _marqueeStart;
    Math::Point2d _marqueeEnd;

    static QColor __viewBackgroundQColor;
};
