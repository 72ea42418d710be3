// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "host/geometry/Point2d.h"
#include "host/layout/TUCanvasViewLayoutView.h"
#include "host/scene/TUNodeSet.h"
#include "host/scene/TUScene.h"

#include <QColor>
#include <memory>

class GV_GraphXMainItem;
class GV_GraphXViewCtrl;
class QGraphicsScene;
class SC_SessionContext;

/// The panel of the graph view: a canvas with a header for each 3D model element of the scene and
/// the tree of the visible one. It keeps its own zoom and pan, by which
/// screen = zoom factor * model + pan holds exactly, in pixels; the canvas' own scrolling stays out
/// of it. Construct it, construct its controller, then call init() before it is shown.
class SUBNODEVIEWS_EXPORT GV_GraphXViewQt : public TUCanvasViewLayoutView
{
    Q_OBJECT

public:
    /// Neither the manager nor the session is owned; the session must outlive the panel.
    GV_GraphXViewQt(AC_Manager* manager, QWidget* parent, SC_SessionContext* session);
    ~GV_GraphXViewQt() override;

    /// Takes ownership of the controller and shows what is selected in the host.
    void init(GV_GraphXViewCtrl* controller);

    TULayoutView* clone(QWidget* parent) const override;
    bool hasMenu() override;

    /// Null before init().
    GV_GraphXMainItem* mainItem() const { return _mainItem; }
    GV_GraphXViewCtrl* controller() const { return _controller.get(); }

    /// Between the pixels of the viewport and model units.
    Math::Point2d screenToModel(const Math::Point2d& point) const;
    Math::Point2d modelToScreen(const Math::Point2d& point) const;

    /// Announces that the extent of the graph changes, or has changed from the given one.
    void prepareGeometryChange();
    void prepareGeometryChange(const QRectF& before);
    /// Repaints the graph.
    void refreshView();
    /// To be called when the extent of the graph or the visible area changed.
    void updateNavigatorMatrix();

public slots:
    void nodesChanged(const TUNodeSet& nodes);
    void nodesNameChanged(const TUNodeSet& nodes);
    void networkChanged();
    void onSelectionChanged();
    void onSubSelectionChanged();
    void onCurrentFrameChanged();
    void onCurrentSceneChanged(TUScene* scene);
    void onPreferenceChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    /// Takes colours and font from the preferences; true when one of them changed.
    bool loadPreferences();

private:
    void initCanvas();
    void connectNotifications();
    void updateMatrix();
    QRectF viewRectInModelCoord() const;

    std::unique_ptr<GV_GraphXViewCtrl> _controller;
    std::unique_ptr<QGraphicsScene> _scene;
    SC_SessionContext* _sessionContext;
    GV_GraphXMainItem* _mainItem = nullptr;
    double _zoomFactor = 1.0;
    Math::Point2d _pan;

    static QColor __viewBackgroundQColor;
};
