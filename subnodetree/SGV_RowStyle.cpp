// SPDX-License-Identifier: MIT

#include "subnodetree/SGV_RowStyle.h"

#include "host/widgets/WID_IconManager.h"
#include "subnodetree/SGV_GraphItem.h"
#include "subnodetree/SGV_StyleDelegate.h"

#include <algorithm>

namespace {

QIcon blendedIcon(const char* resource)
{
    return WID_IconManager::instance().addBlendedIcon(
        QString::fromLatin1(resource),
        SGV_StyleDelegate::instance().subnodeDefaultBackgroundColor());
}

/// The components of a colour as numbers without an upper limit.
struct Components
{
    int red;
    int green;
    int blue;

    explicit Components(const QColor& color)
        : red(color.red())
        , green(color.green())
        , blue(color.blue())
    {
    }

    void add(const Components& other)
    {
        red += other.red;
        green += other.green;
        blue += other.blue;
    }

    /// An ordinary colour cannot hold more than 255, and turns invalid over it; an extended one
    /// can, and is shown as the brightest there is.
    QColor opaque() const
    {
        constexpr int most = 255;
        if (std::max({red, green, blue}) <= most)
            return QColor(red, green, blue, most);
        constexpr float scale = 1.0F / most;
        return QColor::fromRgbF(static_cast<float>(red) * scale, static_cast<float>(green) * scale,
                                static_cast<float>(blue) * scale, 1.0F);
    }
};

} // namespace

QIcon SGV_RowStyle::icon(const SGV_GraphItem& item)
{
    static const QIcon geometry = blendedIcon("3dgraph/geometry.svg");
    static const QIcon transformation = blendedIcon("3dgraph/transformation.svg");
    return item.kindFlags() & SGV_GraphItem::IsGeometry ? geometry : transformation;
}

QColor SGV_RowStyle::textColor(const SGV_GraphItem& item)
{
    const SGV_StyleDelegate& style = SGV_StyleDelegate::instance();
    const quint32 state = item.visibilityState();
    QColor color = state != 0 ? style.subnodeBaseTextColor() : style.subnodeDefaultTextColor();
    Components sum(color);
    if (state & SGV_GraphItem::Disabled)
        sum.add(Components(style.subnodeDisabledTextColor()));
    if (state & SGV_GraphItem::ShapeHidden)
        sum.add(Components(style.subnodeHiddenShapeTextColor()));
    if (state & (SGV_GraphItem::Disabled | SGV_GraphItem::ShapeHidden))
        color = sum.opaque();
    if (item.isAncestorDisabled() || !(item.kindFlags() & SGV_GraphItem::IsKeyTransform))
        color.setAlpha(color.alpha() / 2);
    return color;
}
