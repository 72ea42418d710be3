// SPDX-License-Identifier: MIT
#pragma once

#include <SubnodeViewsExport.h>

#include "graphview/GV_GraphXMainItem.h"

#include <QBrush>
#include <QPixmap>
#include <QTransform>
#include <cstdint>
#include <vector>

class MO_ElementModule;

/// Draws the whole graph into an overview, and keeps the picture: as long as the graph would look
/// the same pixel by pixel, it is only shown again.
class SUBNODEVIEWS_EXPORT GV_OverviewItem : public GV_GraphXMainItem
{
public:
    /// The controller is not owned and must outlive the item's painting.
    explicit GV_OverviewItem(GV_GraphXViewCtrl* controller);
    ~GV_OverviewItem() override;

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    /// Whether the graph would look different from the kept picture by now.
    bool isOutdated() const;
    /// How often the graph was drawn instead of shown again.
    int drawCount() const { return _drawCount; }

private:
    /// Everything that the picture of the graph depends on, apart from where it goes.
    struct Look
    {
        std::uint64_t tree = 0;
        std::uint64_t layout = 0;
        std::uint64_t editable = 0;
        std::uint64_t appearance = 0;
        std::uint64_t graphs = 0;
        /// Null once the open element is gone, which may be before anybody tells of it.
        const MO_ElementModule* openElement = nullptr;
        /// Left at 0 where the colours of the tree's boxes cannot be seen.
        std::uint64_t selection = 0;
        std::uint64_t settings = 0;
        std::vector<QRgb> headerColors;

        friend bool operator==(const Look&, const Look&) = default;
    };
    /// Where it goes.
    struct Place
    {
        QTransform transform;
        QSize size;
        qreal pixelRatio = 1.0;
        QBrush background;
        QColor base;
    };

    Look lookAt(const Place& place) const;
    /// Whether the kept picture will do for that place.
    bool fits(const Place& place) const;
    void draw(const QPainter& target, const QStyleOptionGraphicsItem* option, QWidget* widget);

    Place _place;
    Look _look;
    QPixmap _picture;
    int _drawCount = 0;
};
