// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXNavigatorQt.h"

#include "graphview/GV_FixedCanvas.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_OverviewItem.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {

/// Below this extent, in pixels or in model units, there is nothing to fit.
constexpr int smallestExtent = 5;

} // namespace

GV_GraphXNavigatorQt::GV_GraphXNavigatorQt(GV_GraphXViewQt* mainView, GV_GraphXViewCtrl* controller)
    : QGraphicsView(mainView)
    , _mainView(mainView)
    , _scene(std::make_unique<QGraphicsScene>())
    , _item(new GV_OverviewItem(controller))
{
    setFrameStyle(QFrame::NoFrame);
    GV_FixedCanvas::prepare(*this, *_scene);
    // Keys belong to the graph view, also after a drag in here.
    setFocusProxy(mainView);
    _item->setAcceptedMouseButtons(Qt::NoButton);
    _scene->addItem(_item);
    const QPen pen(QBrush(Qt::black), 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    _visibleAreaItem = _scene->addRect(QRectF(), pen, Qt::NoBrush);
    _visibleAreaItem->setAcceptedMouseButtons(Qt::NoButton);
}

GV_GraphXNavigatorQt::~GV_GraphXNavigatorQt() = default;

GV_GraphXMainItem* GV_GraphXNavigatorQt::mainItem() const
{
    return _item;
}

void GV_GraphXNavigatorQt::updateMatrix(const QRectF& visibleArea)
{
    _visibleAreaItem->setRect(visibleArea);
    const QRectF all = _scene->itemsBoundingRect();
    if (width() < smallestExtent || height() < smallestExtent || all.width() < smallestExtent ||
        all.height() < smallestExtent)
        return;
    const auto graphAspect = static_cast<float>(all.width() / all.height());
    const float viewAspect = static_cast<float>(width() - 1) / static_cast<float>(height() - 1);
    _scale = static_cast<float>(graphAspect >= viewAspect ? (width() - 1) / all.width()
                                                          : (height() - 1) / all.height());
    const double scale = _scale;
    GV_FixedCanvas::setTransform(*this, QTransform(scale, 0, 0, scale,
                                                   width() * 0.5 - all.center().x() * scale,
                                                   height() * 0.5 - all.center().y() * scale));
}

void GV_GraphXNavigatorQt::refresh()
{
    if (_item->isOutdated())
        _item->update();
}

void GV_GraphXNavigatorQt::mousePressEvent(QMouseEvent* event)
{
    _lastPosition = event->position().toPoint();
}

void GV_GraphXNavigatorQt::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (event->buttons() & Qt::LeftButton) {
        const double scale = _scale;
        _mainView->handleNavigatorPan({(_lastPosition.x() - position.x()) / scale,
                                       (_lastPosition.y() - position.y()) / scale});
    }
    _lastPosition = position;
}

void GV_GraphXNavigatorQt::mouseReleaseEvent(QMouseEvent*)
{
}

void GV_GraphXNavigatorQt::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void GV_GraphXNavigatorQt::wheelEvent(QWheelEvent* event)
{
    // The base class would scroll.
    event->accept();
}

void GV_GraphXNavigatorQt::resizeEvent(QResizeEvent*)
{
    _mainView->updateNavigatorMatrix();
}
