// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStringList>
#include <QTransform>

class QGraphicsItem;

/// The calls that paint the parts of a graph, as the recording device describes them.
namespace PaintedCalls {

inline const QString normalBox = QStringLiteral("#ff455aa3");
inline const QString selectedBox = QStringLiteral("#ff5a9bf0");
inline const QString hiddenBox = QStringLiteral("#ff648687");
inline const QString hiddenSelectedBox = QStringLiteral("#ff8dbdb4");
inline const QString disabledBox = QStringLiteral("#ffa8a8a8");
inline const QString black = QStringLiteral("#ff000000");
inline const QString white = QStringLiteral("#ffffffff");

/// What an item paints on a painter with this transform and a pen of this colour.
QStringList painted(QGraphicsItem& item, const QTransform& transform = {},
                    const QColor& penColor = Qt::black);

/// A header and its name, as they stand at full size.
QStringList header(int x, const QByteArray& name, const QString& fill,
                   const QString& outline = black);
/// The box of a tree node and its name, as they stand at full size.
QStringList box(int x, int y, const QByteArray& name, const QString& fill);

/// Lines and circles without their colour, to be completed by lines().
QString line(qreal x1, qreal y1, qreal x2, qreal y2);
/// A circle that is 8 wide.
QString ellipse(qreal x, qreal y);
QStringList lines(const QStringList& shapes, const QString& color = white);

} // namespace PaintedCalls
