// SPDX-License-Identifier: MIT

#include "graphview/GV_WorldViewQt.h"

#include "graphview/GV_DefaultBackground.h"
#include "graphview/GV_GraphXNavigatorQt.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_ResizeCtrlQt.h"
#include "host/preferences/PR_Preference.h"
#include "host/widgets/WID_GridLayout.h"

#include <QEvent>
#include <vector>

namespace {

/// Between the frame and the edges of the graph view, in pixels.
constexpr int cornerMargin = 3;
constexpr int gripThickness = 5;

/// What a grip is like, and where in the frame it lies.
struct GripKind
{
    Qt::CursorShape cursor;
    GV_ResizeCtrlQt::Directions directions;
    int row;
    int column;
};

/// In the order of GV_WorldViewQt::eGrip.
constexpr std::array<GripKind, 8> gripKinds{{
    {Qt::SizeFDiagCursor, {true, true, true, true}, 0, 0},
    {Qt::SizeVerCursor, {true, false, true, false}, 0, 1},
    {Qt::SizeBDiagCursor, {true, true, true, false}, 0, 2},
    {Qt::SizeHorCursor, {false, true, false, false}, 1, 2},
    {Qt::SizeHorCursor, {false, true, false, true}, 1, 0},
    {Qt::SizeBDiagCursor, {true, true, false, true}, 2, 0},
    {Qt::SizeVerCursor, {true, false, false, false}, 2, 1},
    {Qt::SizeFDiagCursor, {true, true, false, false}, 2, 2},
}};

/// The frame can only grow away from its corner.
std::vector<GV_WorldViewQt::eGrip> gripsOfCorner(int corner)
{
    using World = GV_WorldViewQt;
    switch (corner) {
    case 0:
        return {World::eBottom, World::eRight, World::eBottomRight};
    case 1:
        return {World::eBottom, World::eLeft, World::eBottomLeft};
    case 2:
        return {World::eTop, World::eRight, World::eTopRight};
    default:
        return {World::eTop, World::eLeft, World::eTopLeft};
    }
}

/// The canvas has the same colour, so the outer edge of the frame is drawn as a line.
QString gripStyle(const QColor& color, const GripKind& kind)
{
    QString style = QStringLiteral("background-color: %1;").arg(color.name(QColor::HexArgb));
    const QString line =
        QStringLiteral("border-%1: 1px solid %2;")
            .arg(QStringLiteral("%1"),
                 (color.lightness() < 128 ? color.lighter(170) : color.darker(170)).name());
    if (kind.row != 1)
        style += line.arg(kind.row == 0 ? QStringLiteral("top") : QStringLiteral("bottom"));
    if (kind.column != 1)
        style += line.arg(kind.column == 0 ? QStringLiteral("left") : QStringLiteral("right"));
    return style;
}

} // namespace

QColor GV_WorldViewQt::__backgroundQColor = QColor(140, 165, 230, 255);

GV_WorldViewQt::GV_WorldViewQt(GV_GraphXViewQt* mainView, GV_GraphXNavigatorQt* navigator,
                               int corner)
    : QWidget(mainView)
    , _mainView(mainView)
    , _navigator(navigator)
    , _corner(corner)
{
    createGrips();
    layOut();
    refreshBackground(true);
    moveToCorner(corner);
}

GV_WorldViewQt::~GV_WorldViewQt() = default;

void GV_WorldViewQt::createGrips()
{
    for (std::size_t i = 0; i < gripKinds.size(); ++i) {
        _grips[i] = new GV_ResizeCtrlQt(this, gripKinds[i].directions);
        if (gripKinds[i].row != 1)
            _grips[i]->setFixedHeight(gripThickness);
        if (gripKinds[i].column != 1)
            _grips[i]->setFixedWidth(gripThickness);
    }
}

void GV_WorldViewQt::layOut()
{
    auto* grid = new WID_GridLayout(this);
    for (std::size_t i = 0; i < gripKinds.size(); ++i)
        grid->addWidget(_grips[i], gripKinds[i].row, gripKinds[i].column);
    grid->addWidget(_navigator, 1, 1);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
}

void GV_WorldViewQt::moveToCorner(int corner)
{
    _corner = corner;
    for (GV_ResizeCtrlQt* each : _grips) {
        each->setEnabled(false);
        each->unsetCursor();
    }
    const bool atLeft = corner == 0 || corner == 2;
    const bool atTop = corner == 0 || corner == 1;
    move(atLeft ? cornerMargin : _mainView->width() - width() - cornerMargin,
         atTop ? cornerMargin : _mainView->height() - height() - cornerMargin);
    for (const eGrip which : gripsOfCorner(corner)) {
        grip(which)->setEnabled(true);
        grip(which)->setCursor(gripKinds[which].cursor);
    }
    _mainView->refreshView();
}

bool GV_WorldViewQt::refreshBackground(bool force)
{
    const QColor background = QColor::fromRgba(PR_Preference::instance()->getRgbaValue(
        QStringLiteral("ST_3DNODEVIEW_BACKGROUND_COLOR"), GV_defaultBackground));
    const bool changed = background != __backgroundQColor;
    // The colour is shared, so another frame may have been the one to notice that it changed.
    if (!changed && !force && _navigator->backgroundBrush() == QBrush(background))
        return false;
    __backgroundQColor = background;
    for (std::size_t i = 0; i < gripKinds.size(); ++i)
        _grips[i]->setStyleSheet(gripStyle(background, gripKinds[i]));
    _navigator->setBackgroundBrush(background);
    return changed || force;
}

bool GV_WorldViewQt::event(QEvent* event)
{
    // Tips of what is behind the frame would only confuse.
    if (event->type() == QEvent::ToolTip) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void GV_WorldViewQt::resizeEvent(QResizeEvent*)
{
    moveToCorner(_corner);
}
