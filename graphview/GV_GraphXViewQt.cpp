// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXViewQt.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "host/geometry/Matrix2x3.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QGraphicsScene>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

constexpr unsigned int backgroundRgba = 0xff787878;

/// The rest position of the pan: the model's origin, two pixels inside the corner.
constexpr Math::Point2d restPan{2.0, 2.0};

/// Half the side of the scene rectangle: so large that the canvas never limits the pan.
constexpr qreal sceneReach = 1e9;

} // namespace

QColor GV_GraphXViewQt::__viewBackgroundQColor = QColor(140, 165, 230, 255);

GV_GraphXViewQt::GV_GraphXViewQt(AC_Manager* manager, QWidget* parent, SC_SessionContext* session)
    : TUCanvasViewLayoutView(manager, QStringLiteral("graphView"), parent,
                             QStringLiteral("GV_GraphView"), Qt::WindowFlags())
    , _sessionContext(session)
    , _pan(restPan)
{
}

GV_GraphXViewQt::~GV_GraphXViewQt()
{
    // The items read the controller while they are taken out of the scene.
    _scene.reset();
}

void GV_GraphXViewQt::init(GV_GraphXViewCtrl* controller)
{
    _controller.reset(controller);
    initCanvas();
    _mainItem = new GV_GraphXMainItem(controller, false);
    _mainItem->setAcceptedMouseButtons(Qt::NoButton);
    _scene->addItem(_mainItem);
    updateMatrix();
    connectNotifications();
    setContentsMargins(0, 0, 0, 0);
    loadPreferences();
    setBackgroundBrush(__viewBackgroundQColor);
    connect(PR_Preference::instance(), &PR_Preference::preferenceChanged, this,
            &GV_GraphXViewQt::onPreferenceChanged);
    _controller->selectionChanged();
}

void GV_GraphXViewQt::initCanvas()
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlignment(Qt::Alignment());
    setTransformationAnchor(QGraphicsView::NoAnchor);
    setCacheMode(QGraphicsView::CacheBackground);
    _scene = std::make_unique<QGraphicsScene>();
    setScene(_scene.get());
    _scene->setSceneRect(-sceneReach, -sceneReach, 2 * sceneReach, 2 * sceneReach);
}

void GV_GraphXViewQt::connectNotifications()
{
    const TUSceneChangeManager* changes = _sessionContext->changeManager();
    using Changes = TUSceneChangeManager;
    using View = GV_GraphXViewQt;
    connect(changes, &Changes::selectionChanged, this, &View::onSelectionChanged);
    connect(changes, &Changes::subSelectionChanged, this, &View::onSubSelectionChanged);
    connect(changes, &Changes::currentFrameChanged, this, &View::onCurrentFrameChanged);
    connect(changes, &Changes::currentSceneChanged, this, &View::onCurrentSceneChanged);
    connect(changes, &Changes::nodesChanged, this, &View::nodesChanged);
    connect(changes, &Changes::nodeInstanceNamesChanged, this, &View::nodesNameChanged);
    connect(changes, &Changes::networkChanged, this, &View::networkChanged);
    connect(changes, &Changes::childrenOrderingChanged, this, &View::networkChanged);
}

TULayoutView* GV_GraphXViewQt::clone(QWidget* parent) const
{
    auto* view = new GV_GraphXViewQt(actionManager(), parent, _sessionContext);
    view->init(new GV_GraphXViewCtrl(view, _sessionContext));
    return view;
}

bool GV_GraphXViewQt::hasMenu()
{
    return false;
}

bool GV_GraphXViewQt::loadPreferences()
{
    bool changed = false;
    const QColor background = QColor::fromRgba(PR_Preference::instance()->getRgbaValue(
        QStringLiteral("ST_3DNODEVIEW_BACKGROUND_COLOR"), backgroundRgba));
    if (background != __viewBackgroundQColor) {
        __viewBackgroundQColor = background;
        changed = true;
    }
    // The colour is shared, so another view may have been the one to notice that it changed.
    if (backgroundBrush() != QBrush(__viewBackgroundQColor))
        setBackgroundBrush(__viewBackgroundQColor);
    changed |= _mainItem->loadPreferences();
    changed |= _controller->uiInfo()->loadPreferences();
    return changed;
}

void GV_GraphXViewQt::onPreferenceChanged()
{
    loadPreferences();
    // The second load reports no change after a real one, and then nothing is repainted from here:
    // the background brush, or the notification that brought the change about, sees to that.
    if (loadPreferences())
        refreshView();
}

Math::Point2d GV_GraphXViewQt::screenToModel(const Math::Point2d& point) const
{
    using Math::Matrix2x3;
    return Matrix2x3::scale(1.0 / _zoomFactor) * Matrix2x3::translation({-_pan.x, -_pan.y}) * point;
}

Math::Point2d GV_GraphXViewQt::modelToScreen(const Math::Point2d& point) const
{
    using Math::Matrix2x3;
    return Matrix2x3::translation({_pan.x, _pan.y}) * Matrix2x3::scale(_zoomFactor) * point;
}

void GV_GraphXViewQt::updateMatrix()
{
    setTransform(QTransform(_zoomFactor, 0, 0, _zoomFactor, _pan.x, _pan.y));
    // A position of the canvas' own would be added to the pan.
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    updateNavigatorMatrix();
}

QRectF GV_GraphXViewQt::viewRectInModelCoord() const
{
    return QRectF(mapToScene(QPoint(0, 0)), mapToScene(QPoint(width() - 1, height() - 1)));
}

void GV_GraphXViewQt::prepareGeometryChange()
{
    prepareGeometryChange(_mainItem->boundingRect());
}

void GV_GraphXViewQt::prepareGeometryChange(const QRectF& before)
{
    _scene->invalidate(before, QGraphicsScene::AllLayers);
    _mainItem->prepareGeometryChange();
}

void GV_GraphXViewQt::refreshView()
{
    _mainItem->update();
    updateNavigatorMatrix();
}

void GV_GraphXViewQt::updateNavigatorMatrix()
{
}

void GV_GraphXViewQt::paintEvent(QPaintEvent* event)
{
    _mainItem->setViewRectInModelCoord(viewRectInModelCoord());
    TUCanvasViewLayoutView::paintEvent(event);
}

void GV_GraphXViewQt::resizeEvent(QResizeEvent*)
{
    resetCachedContent();
    updateNavigatorMatrix();
}

void GV_GraphXViewQt::wheelEvent(QWheelEvent* event)
{
    // The canvas would scroll by itself.
    event->ignore();
}

void GV_GraphXViewQt::keyPressEvent(QKeyEvent* event)
{
    event->ignore();
}

void GV_GraphXViewQt::nodesChanged(const TUNodeSet& nodes)
{
    _controller->nodesChanged(nodes);
}

void GV_GraphXViewQt::nodesNameChanged(const TUNodeSet& nodes)
{
    _controller->nodesNameChanged(nodes);
}

void GV_GraphXViewQt::networkChanged()
{
    _controller->networkChanged();
}

void GV_GraphXViewQt::onSelectionChanged()
{
    _controller->selectionChanged();
}

void GV_GraphXViewQt::onSubSelectionChanged()
{
    _controller->subSelectionChanged();
}

void GV_GraphXViewQt::onCurrentFrameChanged()
{
    _controller->currentFrameChanged();
}

void GV_GraphXViewQt::onCurrentSceneChanged(TUScene* scene)
{
    _controller->currentSceneChanged(scene);
}
