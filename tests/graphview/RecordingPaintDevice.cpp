// SPDX-License-Identifier: MIT

#include "tests/graphview/RecordingPaintDevice.h"

#include <QLocale>
#include <QPaintEngine>
#include <QPainter>

namespace {

/// The resolution of the off-screen platform, so that fonts measure the same on both.
constexpr int dotsPerInch = 96;

QString number(qreal value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString numbers(std::initializer_list<qreal> values)
{
    QStringList result;
    for (const qreal value : values)
        result.append(number(value));
    return result.join(QLatin1Char(' '));
}

QString numbers(const QRectF& rect)
{
    return numbers({rect.x(), rect.y(), rect.width(), rect.height()});
}

/// The radius of the corners, when the path is a rectangle with round corners; 0 for any other.
qreal cornerRadius(const QPainterPath& path)
{
    if (path.elementCount() == 0)
        return 0;
    const QRectF rect = path.boundingRect();
    const qreal radius = path.elementAt(0).y - rect.y();
    QPainterPath rounded;
    rounded.addRoundedRect(rect, radius, radius, Qt::AbsoluteSize);
    return rounded == path ? radius : 0;
}

QString elements(const QPainterPath& path)
{
    QStringList result;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        result.append(QString::number(element.type) + QLatin1Char(':') +
                      numbers({element.x, element.y}));
    }
    return result.join(QLatin1Char(' '));
}

class Engine : public QPaintEngine
{
public:
    explicit Engine(std::vector<RecordedCall>& calls)
        : QPaintEngine(QPaintEngine::AllFeatures)
        , _calls(calls)
    {
    }

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    Type type() const override { return User; }

    void drawLines(const QLineF* lines, int count) override
    {
        for (int i = 0; i < count; ++i) {
            RecordedCall& call = append(RecordedCall::Line);
            call.line = lines[i];
        }
    }
    void drawEllipse(const QRectF& rect) override
    {
        RecordedCall& call = append(RecordedCall::Ellipse);
        call.rect = rect;
    }
    void drawRects(const QRectF* rects, int count) override
    {
        for (int i = 0; i < count; ++i) {
            RecordedCall& call = append(RecordedCall::Rect);
            call.rect = rects[i];
        }
    }
    void drawPath(const QPainterPath& path) override
    {
        RecordedCall& call = append(RecordedCall::Path);
        call.radius = cornerRadius(path);
        if (call.radius > 0) {
            call.kind = RecordedCall::RoundedRect;
            call.rect = path.boundingRect();
        }
        call.path = path;
    }
    void drawTextItem(const QPointF& baseline, const QTextItem& item) override
    {
        RecordedCall& call = append(RecordedCall::Text);
        call.baseline = baseline;
        call.text = item.text();
        call.font = item.font();
    }

    void drawPolygon(const QPointF*, int, PolygonDrawMode) override { append(RecordedCall::Other); }
    void drawPolygon(const QPoint*, int, PolygonDrawMode) override { append(RecordedCall::Other); }
    void drawPoints(const QPointF*, int) override { append(RecordedCall::Other); }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override
    {
        append(RecordedCall::Other);
    }
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
        append(RecordedCall::Other);
    }
    void drawTiledPixmap(const QRectF&, const QPixmap&, const QPointF&) override
    {
        append(RecordedCall::Other);
    }

    // The overloads that are not overridden forward to those above.
    using QPaintEngine::drawEllipse;
    using QPaintEngine::drawLines;
    using QPaintEngine::drawPoints;
    using QPaintEngine::drawRects;

private:
    RecordedCall& append(RecordedCall::Kind kind)
    {
        RecordedCall& call = _calls.emplace_back();
        call.kind = kind;
        call.pen = painter()->pen();
        call.brush = painter()->brush();
        return call;
    }

    std::vector<RecordedCall>& _calls;
};

} // namespace

QString RecordedCall::description() const
{
    const QString penName =
        pen.style() == Qt::SolidLine ? pen.color().name(QColor::HexArgb) : QStringLiteral("other");
    const QString lines = QStringLiteral(" pen ") + penName;
    const QString fill = QStringLiteral(" brush ") + (brush.style() == Qt::SolidPattern
                                                          ? brush.color().name(QColor::HexArgb)
                                                          : QStringLiteral("none"));
    switch (kind) {
    case Line:
        return QStringLiteral("line ") + numbers({line.x1(), line.y1(), line.x2(), line.y2()}) +
               lines;
    case Ellipse:
        return QStringLiteral("ellipse ") + numbers(rect) + lines + fill;
    case Rect:
        return QStringLiteral("rect ") + numbers(rect) + lines + fill;
    case RoundedRect:
        return QStringLiteral("rounded ") + numbers(rect) + QStringLiteral(" radius ") +
               number(radius) + lines + fill;
    case Path:
        return QStringLiteral("path ") + elements(path) + lines + fill;
    case Text:
        return QStringLiteral("text '%1' at %2%3 font %4 %5")
            .arg(text, numbers({baseline.x(), baseline.y()}), lines, font.family())
            .arg(font.pointSize());
    case Other:
        break;
    }
    return QStringLiteral("something else");
}

RecordingPaintDevice::RecordingPaintDevice(const QSize& size)
    : _size(size)
    , _engine(std::make_unique<Engine>(_calls))
{
}

RecordingPaintDevice::~RecordingPaintDevice() = default;

QPaintEngine* RecordingPaintDevice::paintEngine() const
{
    return _engine.get();
}

QStringList RecordingPaintDevice::descriptions() const
{
    QStringList result;
    for (const RecordedCall& call : _calls)
        result.append(call.description());
    return result;
}

void RecordingPaintDevice::replay(QPainter& painter) const
{
    for (const RecordedCall& call : _calls) {
        painter.setPen(call.pen);
        painter.setBrush(call.brush);
        switch (call.kind) {
        case RecordedCall::Line:
            painter.drawLine(call.line);
            break;
        case RecordedCall::Ellipse:
            painter.drawEllipse(call.rect);
            break;
        case RecordedCall::Rect:
            painter.drawRect(call.rect);
            break;
        case RecordedCall::Text:
            painter.setFont(call.font);
            painter.drawText(call.baseline, call.text);
            break;
        case RecordedCall::RoundedRect:
            painter.drawRoundedRect(call.rect, call.radius, call.radius, Qt::AbsoluteSize);
            break;
        case RecordedCall::Path:
        case RecordedCall::Other:
            painter.drawPath(call.path);
            break;
        }
    }
}

int RecordingPaintDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return _size.width();
    case PdmHeight:
        return _size.height();
    case PdmWidthMM:
        return qRound(_size.width() * 25.4 / dotsPerInch);
    case PdmHeightMM:
        return qRound(_size.height() * 25.4 / dotsPerInch);
    case PdmNumColors:
        return 1 << 24;
    case PdmDepth:
        return 32;
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return qRound(devicePixelRatioFScale());
    }
    return 0;
}
