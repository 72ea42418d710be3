// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferenceIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <algorithm>

namespace {

/// An icon that is painted anew for every size.
class DrawnIcon : public QIconEngine
{
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return result;
    }
};

QColor textColor(QIcon::Mode mode)
{
    return QGuiApplication::palette().color(
        mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
}

class SwatchIcon : public DrawnIcon
{
public:
    explicit SwatchIcon(const QColor& color)
        : _color(color)
    {
    }
    QIconEngine* clone() const override { return new SwatchIcon(_color); }
    void paint(QPainter* painter, const QRect& whole, QIcon::Mode mode, QIcon::State) override
    {
        const int margin = whole.height() / 4;
        const QRect rect = whole.adjusted(margin, 0, -margin, 0);
        // Two rows of squares, whatever the size.
        const int square = std::max(rect.height() / 2, 1);
        for (int y = 0; y * square < rect.height(); ++y) {
            for (int x = 0; x * square < rect.width(); ++x) {
                const QRect each(rect.topLeft() + QPoint(x, y) * square, QSize(square, square));
                painter->fillRect(each & rect, (x + y) % 2 == 0 ? Qt::white : Qt::lightGray);
            }
        }
        painter->fillRect(rect, _color);
        QColor frame = textColor(mode);
        frame.setAlphaF(frameOpacity);
        painter->setPen(frame);
        painter->drawRect(rect.adjusted(0, 0, -1, -1));
    }

private:
    static constexpr float frameOpacity = 0.6F;
    QColor _color;
};

class BackIcon : public DrawnIcon
{
public:
    QIconEngine* clone() const override { return new BackIcon; }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / grid, rect.height() / grid);
        const QColor color = textColor(mode);
        painter->setPen(QPen(color, 1.6, Qt::SolidLine, Qt::FlatCap));
        painter->drawArc(QRectF(3.5, 3.5, 9, 9), 140 * 16, -290 * 16);
        QPainterPath head(QPointF(1.6, 2.2));
        head.lineTo(1.6, 7.4);
        head.lineTo(6.8, 7.4);
        painter->fillPath(head, color);
    }

private:
    /// What the coordinates above are in.
    static constexpr qreal grid = 16;
};

} // namespace

QIcon PreferenceIcons::swatch(const QColor& color)
{
    return QIcon(new SwatchIcon(color));
}

QIcon PreferenceIcons::backToDefault()
{
    return QIcon(new BackIcon);
}
