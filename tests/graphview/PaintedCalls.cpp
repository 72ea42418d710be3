// SPDX-License-Identifier: MIT

#include "tests/graphview/PaintedCalls.h"

#include "graphview/GV_GraphUiInfo.h"
#include "tests/graphview/RecordingPaintDevice.h"

#include <QGraphicsItem>
#include <QPainter>

namespace {

/// A name where it belongs in a box with this corner. Where its baseline lies is up to the font.
QString label(int x, int y, const QByteArray& name)
{
    RecordingPaintDevice device;
    QPainter painter(&device);
    painter.setFont(GV_GraphUiInfo::font());
    painter.drawText(QRectF(x + 6, y + 3, 124, 18), Qt::AlignLeft | Qt::AlignVCenter,
                     QString::fromUtf8(name));
    return device.descriptions().join(QLatin1Char(' '));
}

QString colors(const QString& pen, const QString& fill)
{
    return QStringLiteral(" pen %1 brush %2").arg(pen, fill);
}

} // namespace

namespace PaintedCalls {

QStringList painted(QGraphicsItem& item, const QTransform& transform, const QColor& penColor)
{
    RecordingPaintDevice device;
    QPainter painter(&device);
    painter.setTransform(transform);
    painter.setPen(penColor);
    item.paint(&painter, nullptr, nullptr);
    return device.descriptions();
}

QStringList header(int x, const QByteArray& name, const QString& fill, const QString& outline)
{
    return {QStringLiteral("rounded %1 0 136 24 radius 6").arg(x) + colors(outline, fill),
            label(x, 0, name)};
}

QStringList box(int x, int y, const QByteArray& name, const QString& fill)
{
    return {QStringLiteral("rect %1 %2 136 24").arg(x).arg(y) + colors(black, fill),
            label(x, y, name)};
}

QString line(qreal x1, qreal y1, qreal x2, qreal y2)
{
    return QStringLiteral("line %1 %2 %3 %4").arg(x1).arg(y1).arg(x2).arg(y2);
}

QString ellipse(qreal x, qreal y)
{
    return QStringLiteral("ellipse %1 %2 8 8").arg(x).arg(y);
}

QStringList lines(const QStringList& shapes, const QString& color)
{
    QStringList calls;
    for (const QString& shape : shapes) {
        const bool isLine = shape.startsWith(QLatin1String("line"));
        calls.append(shape + QStringLiteral(" pen ") + color +
                     (isLine ? QString() : QStringLiteral(" brush none")));
    }
    return calls;
}

} // namespace PaintedCalls
