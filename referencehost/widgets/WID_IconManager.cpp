// SPDX-License-Identifier: MIT
#include "host/widgets/WID_IconManager.h"

#include <QFileInfo>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int sizes[] = {16, 24, 32, 48};
constexpr int scales[] = {1, 2};
/// How much of the background goes into an icon.
constexpr double share = 0.25;

QPixmap blended(const QPixmap& pixmap, const QColor& background)
{
    QPixmap result = pixmap;
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setOpacity(share);
    painter.fillRect(QRectF(QPointF(), pixmap.deviceIndependentSize()), background);
    return result;
}

} // namespace

WID_IconManager& WID_IconManager::instance()
{
    static WID_IconManager manager;
    return manager;
}

QIcon WID_IconManager::addBlendedIcon(const QString& resource, const QColor& background)
{
    const QString path = QStringLiteral(":/icons/") + resource;
    if (!QFileInfo(path).isFile())
        return {};
    const QIcon plain(path);
    if (!background.isValid())
        return plain;
    QIcon icon;
    for (const int size : sizes) {
        for (const int scale : scales) {
            const QPixmap pixmap = plain.pixmap(QSize(size, size), scale);
            if (!pixmap.isNull())
                icon.addPixmap(blended(pixmap, background));
        }
    }
    return icon;
}
