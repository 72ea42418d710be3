// SPDX-License-Identifier: MIT

#include "graphview/GV_FixedCanvas.h"
#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_WorldViewQt.h"
#include "host/geometry/Matrix2x3.h"
#include "host/preferences/PR_Preference.h"

#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Zoom levels at which the factor doubles, and how far they go: from 1/64 to 16.
constexpr double levelsPerOctave = 32.0;
constexpr int smallestLevel = -192;
constexpr int largestLevel = 128;

/// Levels by which one step of the wheel or of an action zooms.
constexpr int levelsPerStep = 4;

/// The rest position of the pan: the model's origin, two pixels inside the corner.
constexpr Math::Vector2d restPan{2.0, 2.0};

/// How far the overview can take the visible area, in pixels. The canvas can do no more at the
/// smallest zoom.
constexpr double farthestPan = 7812500.0;

constexpr int defaultWheelThreshold = 50;

double factorOfLevel(int level)
{
    return std::pow(2.0, level / levelsPerOctave);
}

/// The level at which content fits that is to be scaled by the ratio: one less than the largest, so
/// that some room is left, and never above 1:1.
int levelOfRatio(double ratio)
{
    const double level = std::floor(std::log(ratio) * levelsPerOctave / std::log(2.0)) - 1.0;
    return static_cast<int>(std::min(level, 0.0));
}

int wheelThreshold()
{
    // Read once: a change of the preference counts from the next start on.
    static const int threshold = PR_Preference::instance()->getIntValue(
        QStringLiteral("WHEEL_ZOOM_THRESHOLD"), defaultWheelThreshold);
    return threshold;
}

} // namespace

Math::Point2d GV_GraphXViewQt::screenToModel(const Math::Point2d& point) const
{
    using Math::Matrix2x3;
    return Matrix2x3::scale(1.0 / _zoomFactor) * Matrix2x3::translation({-_pan.x, -_pan.y}) * point;
}

Math::Point2d GV_GraphXViewQt::modelToScreen(const Math::Point2d& point) const
{
    using Math::Matrix2x3;
    return Matrix2x3::translation(_pan) * Matrix2x3::scale(_zoomFactor) * point;
}

void GV_GraphXViewQt::updateMatrix()
{
    {
        const QScopedValueRollback guard(_settingTransform, true);
        GV_FixedCanvas::setTransform(*this,
                                     QTransform(_zoomFactor, 0, 0, _zoomFactor, _pan.x, _pan.y));
    }
    updateNavigatorMatrix();
}

QRectF GV_GraphXViewQt::viewRectInModelCoord() const
{
    return QRectF(mapToScene(QPoint(0, 0)), mapToScene(QPoint(width() - 1, height() - 1)));
}

void GV_GraphXViewQt::boundZoomFactor()
{
    _zoomLevel = std::clamp(_zoomLevel, smallestLevel, largestLevel);
}

void GV_GraphXViewQt::calculateZoomingFactors(double contentExtent, double availableExtent)
{
    setZoomLevel(levelOfRatio(availableExtent / contentExtent));
}

void GV_GraphXViewQt::setZoomLevel(int level)
{
    _zoomLevel = level;
    _zoomFactor = factorOfLevel(level);
}

void GV_GraphXViewQt::resetZoom()
{
    setZoomLevel(0);
}

void GV_GraphXViewQt::resetPan()
{
    _pan = restPan;
    _referencePan = restPan;
}

void GV_GraphXViewQt::stampRefs(int x, int y)
{
    _startZoomLevel = _zoomLevel;
    _referencePan = _pan;
    _anchor = {static_cast<double>(x), static_cast<double>(y)};
}

void GV_GraphXViewQt::handleZoom(const QPoint& position)
{
    // Always from where the gesture began, so that going back there undoes it exactly.
    setZoomLevel(static_cast<int>(position.y() + _startZoomLevel - _anchor.y));
    boundZoomFactor();
    setZoomLevel(_zoomLevel);
    const double ratio = factorOfLevel(_zoomLevel - _startZoomLevel);
    _pan = {(_referencePan.x - _anchor.x) * ratio + _anchor.x,
            (_referencePan.y - _anchor.y) * ratio + _anchor.y};
    updateMatrix();
}

void GV_GraphXViewQt::zoomAbout(const QPoint& position, int levels)
{
    stampRefs(position.x(), position.y());
    handleZoom(position + QPoint(0, levels));
}

void GV_GraphXViewQt::handlePan(const QPoint& position)
{
    const QPoint distance = position - _lastPosition;
    _pan = _pan + Math::Vector2d{double(distance.x()), double(distance.y())};
    updateMatrix();
}

void GV_GraphXViewQt::handleNavigatorPan(const Math::Vector2d& distance)
{
    _pan = _pan + _zoomFactor * distance;
    _pan.x = std::clamp(_pan.x, -farthestPan, farthestPan);
    _pan.y = std::clamp(_pan.y, -farthestPan, farthestPan);
    updateMatrix();
}

void GV_GraphXViewQt::onActionZoomIn()
{
    zoomAbout(QPoint(width() / 2, height() / 2), levelsPerStep);
}

void GV_GraphXViewQt::onActionZoomOut()
{
    zoomAbout(QPoint(width() / 2, height() / 2), -levelsPerStep);
}

void GV_GraphXViewQt::onActionResetZoom()
{
    resetZoom();
    _startZoomLevel = 0;
    updateMatrix();
}

void GV_GraphXViewQt::onActionResetPan()
{
    resetPan();
    updateMatrix();
}

void GV_GraphXViewQt::onActionResetView()
{
    resetZoom();
    _startZoomLevel = 0;
    resetPan();
    updateMatrix();
}

void GV_GraphXViewQt::onActionFrameSelected()
{
    if (std::as_const(*_controller->uiInfo()).selectedNodes().empty())
        return;
    Math::Rect2d rect = _controller->uiInfo()->selectionRect();
    if (rect.width() == 0.0 || rect.height() == 0.0)
        return;
    centerViewOnRect(rect);
    updateMatrix();
}

void GV_GraphXViewQt::centerViewOnRect(Math::Rect2d& rect)
{
    if (width() < 2 || height() < 2)
        return;
    const double rectWidth = std::abs(rect.width());
    const double rectHeight = std::abs(rect.height());
    if (rectWidth <= 1.0 || rectHeight <= 1.0)
        return;
    if (width() >= rectWidth && height() >= rectHeight)
        recenterOnSelectionNoZoom(rect);
    else
        recenterOnSelectionWithZoom(rect);
}

void GV_GraphXViewQt::recenterOnSelectionNoZoom(Math::Rect2d& rect)
{
    resetZoom();
    _startZoomLevel = 0;
    // What fits together with the origin leaves the origin in the corner.
    _pan.x = width() > rect.right ? 0.0 : width() * 0.5 - rect.center().x;
    _pan.y = height() > rect.bottom ? 0.0 : height() * 0.5 - rect.center().y;
}

void GV_GraphXViewQt::recenterOnSelectionWithZoom(Math::Rect2d& rect)
{
    const double rectWidth = std::abs(rect.width());
    const double rectHeight = std::abs(rect.height());
    const double viewWidth = width();
    const double viewHeight = height();
    if (viewWidth / viewHeight > rectWidth / rectHeight)
        calculateZoomingFactors(rectHeight, viewHeight);
    else
        calculateZoomingFactors(rectWidth, viewWidth);
    if (viewWidth > _zoomFactor * rect.right && viewHeight > _zoomFactor * rect.bottom) {
        _pan = {0.0, 0.0};
        return;
    }
    _pan = {viewWidth * 0.5 - _zoomFactor * rect.center().x,
            viewHeight * 0.5 - _zoomFactor * rect.center().y};
}

void GV_GraphXViewQt::paintEvent(QPaintEvent* event)
{
    _mainItem->setViewRectInModelCoord(viewRectInModelCoord());
    TUCanvasViewLayoutView::paintEvent(event);
}

void GV_GraphXViewQt::resizeEvent(QResizeEvent*)
{
    resetCachedContent();
    _worldView->moveToCorner(_worldViewCorner);
    updateNavigatorMatrix();
}

void GV_GraphXViewQt::scrollContentsBy(int dx, int dy)
{
    TUCanvasViewLayoutView::scrollContentsBy(dx, dy);
    // While the transform is set the scroll bars only go back to where they have to stand.
    if (_settingTransform || !_worldView)
        return;
    _pan = _pan + Math::Vector2d{static_cast<double>(dx), static_cast<double>(dy)};
    updateMatrix();
}

void GV_GraphXViewQt::wheelEvent(QWheelEvent* event)
{
    // The base class would scroll.
    event->accept();
    _wheelDelta += event->angleDelta().y();
    if (std::abs(_wheelDelta) <= wheelThreshold())
        return;
    zoomAbout(event->position().toPoint(), _wheelDelta > 0 ? levelsPerStep : -levelsPerStep);
    _wheelDelta = 0;
}
