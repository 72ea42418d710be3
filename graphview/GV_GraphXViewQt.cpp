// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXViewQt.h"

#include "graphview/GV_DefaultBackground.h"
#include "graphview/GV_FixedCanvas.h"
#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXNavigatorQt.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_WorldViewQt.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>

QColor GV_GraphXViewQt::__viewBackgroundQColor = QColor(140, 165, 230, 255);

GV_GraphXViewQt::GV_GraphXViewQt(AC_Manager* manager, QWidget* parent, SC_SessionContext* session)
    : TUCanvasViewLayoutView(manager, QStringLiteral("graphView"), parent,
                             QStringLiteral("GV_GraphView"), Qt::WindowFlags())
    , _sessionContext(session)
{
    resetPan();
}

GV_GraphXViewQt::~GV_GraphXViewQt()
{
    // The navigator and the items read the controller until they are gone.
    delete _worldView;
    _scene.reset();
}

void GV_GraphXViewQt::init(GV_GraphXViewCtrl* controller)
{
    _controller.reset(controller);
    initCanvas();
    initMarquee();
    _navigator = new GV_GraphXNavigatorQt(this, controller);
    initWorldView();
    updateMatrix();
    connectNotifications();
    setContentsMargins(0, 0, 0, 0);
    setMenu(actionManager(), "3D_NODES_POPUP_MENU", ePopupMenu);
    loadPreferences();
    setBackgroundBrush(__viewBackgroundQColor);
    connect(PR_Preference::instance(), &PR_Preference::preferenceChanged, this,
            &GV_GraphXViewQt::onPreferenceChanged);
    _controller->selectionChanged();
}

void GV_GraphXViewQt::initCanvas()
{
    setCacheMode(QGraphicsView::CacheBackground);
    _scene = std::make_unique<QGraphicsScene>();
    GV_FixedCanvas::prepare(*this, *_scene);
    _mainItem = new GV_GraphXMainItem(_controller.get(), false);
    _mainItem->setAcceptedMouseButtons(Qt::NoButton);
    _scene->addItem(_mainItem);
}

void GV_GraphXViewQt::initMarquee()
{
    const QPen pen(QBrush(Qt::black), 0, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin);
    _marqueeItem = _scene->addRect(QRectF(), pen, Qt::NoBrush);
    _marqueeItem->setAcceptedMouseButtons(Qt::NoButton);
    _marqueeItem->hide();
}

void GV_GraphXViewQt::initWorldView()
{
    const PR_Preference* preferences = PR_Preference::instance();
    _worldViewCorner = preferences->getEnum(QStringLiteral("GV_WORLD_VIEW_STARTING_CORNER"));
    _worldView = new GV_WorldViewQt(this, _navigator, _worldViewCorner);
    _worldView->setGeometry(QRect(QPoint(0, 0), QPoint(99, 99)));
    if (!preferences->getBoolValue(QStringLiteral("GV_WORLD_VIEW_STARTING_STATE"), true))
        _worldView->hide();
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
        QStringLiteral("ST_3DNODEVIEW_BACKGROUND_COLOR"), GV_defaultBackground));
    if (background != __viewBackgroundQColor) {
        __viewBackgroundQColor = background;
        changed = true;
    }
    // The colour is shared, so another view may have been the one to notice that it changed.
    if (backgroundBrush() != QBrush(__viewBackgroundQColor))
        setBackgroundBrush(__viewBackgroundQColor);
    changed |= _mainItem->loadPreferences();
    changed |= _controller->uiInfo()->loadPreferences();
    changed |= _worldView->refreshBackground(false);
    return changed;
}

void GV_GraphXViewQt::onPreferenceChanged()
{
    if (!loadPreferences())
        _worldView->refreshBackground(false);
    // The second load reports no change after a real one, and then nothing is repainted from here:
    // the background brush, or the notification that brought the change about, sees to that.
    if (loadPreferences())
        refreshView();
}

void GV_GraphXViewQt::prepareGeometryChange()
{
    _scene->invalidate(_mainItem->boundingRect(), QGraphicsScene::AllLayers);
    GV_GraphXMainItem* overview = _navigator->mainItem();
    _navigator->scene()->invalidate(overview->boundingRect(), QGraphicsScene::AllLayers);
    _mainItem->prepareGeometryChange();
    overview->prepareGeometryChange();
}

void GV_GraphXViewQt::prepareGeometryChange(const QRectF& before)
{
    _scene->invalidate(before, QGraphicsScene::AllLayers);
    _navigator->scene()->invalidate(before, QGraphicsScene::AllLayers);
    _mainItem->prepareGeometryChange();
    _navigator->mainItem()->prepareGeometryChange();
}

void GV_GraphXViewQt::refreshView()
{
    _mainItem->update();
    _navigator->refresh();
    updateNavigatorMatrix();
}

void GV_GraphXViewQt::updateNavigatorMatrix()
{
    _navigator->updateMatrix(viewRectInModelCoord());
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
