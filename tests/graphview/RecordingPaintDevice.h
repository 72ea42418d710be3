// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QPaintDevice>
#include <QPainterPath>
#include <QPen>
#include <QStringList>
#include <memory>
#include <vector>

class QPainter;

/// One thing that was painted, in the coordinates it was given in, with what it was painted with.
struct RecordedCall
{
    enum Kind
    {
        Line,
        Ellipse,
        Rect,
        RoundedRect,
        Path,
        Text,
        Other
    };

    Kind kind = Other;
    QLineF line;
    QRectF rect;
    /// Of the corners of a rounded rectangle.
    qreal radius = 0;
    QPainterPath path;
    QString text;
    /// Where the baseline of a text starts.
    QPointF baseline;
    QPen pen;
    QBrush brush;
    QFont font;

    /// On one line, with every number in full; the pen's width is left out.
    QString description() const;
};

/// A device that lists what is painted on it. It is no raster device, so nobody who paints on it
/// can know what will be seen of it.
class RecordingPaintDevice : public QPaintDevice
{
public:
    explicit RecordingPaintDevice(const QSize& size = QSize(1000, 1000));
    ~RecordingPaintDevice() override;

    QPaintEngine* paintEngine() const override;

    const std::vector<RecordedCall>& calls() const { return _calls; }
    QStringList descriptions() const;

    /// Paints everything again, on a painter that has the transform of the recording.
    void replay(QPainter& painter) const;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize _size;
    std::vector<RecordedCall> _calls;
    std::unique_ptr<QPaintEngine> _engine;
};
