// SPDX-License-Identifier: MIT

#include "workbench/resources/FadedIcon.h"

#include <QPainter>
#include <QPixmap>

namespace {

constexpr double faded = 0.35;

} // namespace

QIcon withFadedDisabled(const QIcon& icon)
{
    QIcon result = icon;
    if (icon.isNull())
        return result;
    // What tool bars and menus show, at the usual scale factors.
    for (const int extent : {16, 24, 32, 48, 64}) {
        const QPixmap bright = icon.pixmap(QSize(extent, extent), 1.0);
        QPixmap dim(bright.size());
        dim.fill(Qt::transparent);
        QPainter painter(&dim);
        painter.setOpacity(faded);
        painter.drawPixmap(0, 0, bright);
        painter.end();
        result.addPixmap(dim, QIcon::Disabled);
    }
    return result;
}
