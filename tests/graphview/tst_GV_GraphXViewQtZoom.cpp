// SPDX-License-Identifier: MIT

#include "tests/graphview/CanvasTest.h"

#include <QRandomGenerator>
#include <QScrollBar>

namespace {

constexpr int smallestLevel = -192;
constexpr int largestLevel = 128;
constexpr double farthestPan = 7812500.0;

/// Zoom and pan as they have to be, kept beside the panel's own.
struct Expected
{
    int level = 0;
    double x = 2.0;
    double y = 2.0;

    double factor() const { return std::pow(2.0, level / 32.0); }
    void zoom(const QPoint& anchor, int levels)
    {
        const int target = std::clamp(level + levels, smallestLevel, largestLevel);
        const double ratio = std::pow(2.0, (target - level) / 32.0);
        x = (x - anchor.x()) * ratio + anchor.x();
        y = (y - anchor.y()) * ratio + anchor.y();
        level = target;
    }
};

} // namespace

/// Where things are on the canvas after zooming and panning by hand.
class tst_GV_GraphXViewQtZoom : public CanvasTest
{
    Q_OBJECT

private:
    QRandomGenerator _random{7};
    Expected _expected;

    QPoint anyPixel()
    {
        const QSize size = view().viewport()->size();
        return {_random.bounded(size.width()), _random.bounded(size.height())};
    }

    /// Whether zoom and pan are those expected, and the canvas maps by them.
    bool mapsAsExpected()
    {
        const double z = _expected.factor();
        if (factor() != z || !isNear(pan(), _expected.x, _expected.y))
            return false;
        if (view().horizontalScrollBar()->value() != 0 || view().verticalScrollBar()->value() != 0)
            return false;
        for (int i = 0; i < 10; ++i) {
            const QPoint pixel = anyPixel();
            const double x = (pixel.x() - _expected.x) / z;
            const double y = (pixel.y() - _expected.y) / z;
            const QPointF onScene = view().mapToScene(pixel);
            const Math::Point2d model =
                view().screenToModel({double(pixel.x()), double(pixel.y())});
            const Math::Point2d screen = view().modelToScreen({x, y});
            // Less than a hundredth of a pixel apart, and in the same pixel.
            const double close = 0.01 / z;
            if (std::abs(onScene.x() - x) > close || std::abs(onScene.y() - y) > close ||
                std::abs(model.x - x) > close || std::abs(model.y - y) > close ||
                std::abs(screen.x - pixel.x()) > 0.01 || std::abs(screen.y - pixel.y()) > 0.01 ||
                view().mapFromScene(QPointF(x, y)) != pixel)
                return false;
        }
        return true;
    }

    void dragZoomTo(int level)
    {
        const QPoint from = anyPixel();
        dragZoom(from, level - _expected.level);
        _expected.zoom(from, level - _expected.level);
    }
    void panByHand(const QPoint& distance)
    {
        dragPan(QPoint(50, 50), QPoint(50, 50) + distance);
        _expected.x += distance.x();
        _expected.y += distance.y();
    }
    void panByNavigator(double dx, double dy)
    {
        view().handleNavigatorPan({dx, dy});
        const double z = _expected.factor();
        _expected.x = std::clamp(_expected.x + z * dx, -farthestPan, farthestPan);
        _expected.y = std::clamp(_expected.y + z * dy, -farthestPan, farthestPan);
    }
    void panByScrollBar(Qt::Orientation orientation, int value)
    {
        const bool horizontal = orientation == Qt::Horizontal;
        QScrollBar* bar = horizontal ? view().horizontalScrollBar() : view().verticalScrollBar();
        bar->setValue(value);
        (horizontal ? _expected.x : _expected.y) -= value;
    }
    /// What a wheel step of that direction brings.
    void step(const QPoint& position, int direction)
    {
        turnWheel(position, 120 * direction);
        _expected.zoom(position, 4 * direction);
    }

private slots:
    void init()
    {
        StageTest::init();
        _expected = {};
        _random.seed(7);
        QVERIFY(definePanKey());
        QVERIFY(show());
        QVERIFY(mapsAsExpected());
    }

    void the_canvas_maps_exactly_at_every_wheel_step()
    {
        while (_expected.level > smallestLevel) {
            step(anyPixel(), -1);
            QVERIFY2(mapsAsExpected(), qPrintable(QString::number(_expected.level)));
        }
        while (_expected.level < largestLevel) {
            step(anyPixel(), 1);
            QVERIFY2(mapsAsExpected(), qPrintable(QString::number(_expected.level)));
        }
        while (_expected.level > 0) {
            step(anyPixel(), -1);
            QVERIFY2(mapsAsExpected(), qPrintable(QString::number(_expected.level)));
        }
    }

    void the_canvas_maps_exactly_at_every_level_of_a_drag()
    {
        holdPanKey();
        const QPoint anchor(211, 96);
        press(anchor, Qt::MiddleButton);
        for (int level = smallestLevel; level <= largestLevel; ++level) {
            moveTo(anchor + QPoint(level % 7, level));
            _expected = {};
            _expected.zoom(anchor, level);
            QVERIFY2(mapsAsExpected(), qPrintable(QString::number(level)));
        }
    }

    void the_canvas_maps_exactly_at_far_pans()
    {
        for (const int level : {smallestLevel, -191, -100, -1, 0, 1, 37, 64, 127, largestLevel}) {
            view().onActionResetView();
            _expected = {};
            dragZoomTo(level);
            for (const QPointF direction :
                 {QPointF(-1, -1), QPointF(-1, 1), QPointF(1, 1), QPointF(1, -1), QPointF(0, -1)}) {
                panByNavigator(1e9 * direction.x(), 1e9 * direction.y());
                QVERIFY2(mapsAsExpected(), qPrintable(QString::number(level)));
                panByHand(QPoint(331, -170));
                QVERIFY2(mapsAsExpected(), qPrintable(QString::number(level)));
                step(anyPixel(), level < 0 ? 1 : -1);
                QVERIFY2(mapsAsExpected(), qPrintable(QString::number(level)));
                dragZoomTo(level);
                QVERIFY2(mapsAsExpected(), qPrintable(QString::number(level)));
            }
        }
    }

    void the_canvas_maps_exactly_whatever_is_done_to_it()
    {
        for (int i = 0; i < 400; ++i) {
            const int move = _random.bounded(6);
            switch (move) {
            case 0:
                step(anyPixel(), _random.bounded(2) ? 1 : -1);
                break;
            case 1:
                dragZoomTo(_random.bounded(smallestLevel, largestLevel + 1));
                break;
            case 2:
                panByHand(QPoint(_random.bounded(-400, 400), _random.bounded(-400, 400)));
                break;
            case 3:
                panByNavigator(_random.bounded(20000.0) - 10000.0,
                               _random.bounded(20000.0) - 10000.0);
                break;
            case 4:
                panByScrollBar(_random.bounded(2) ? Qt::Horizontal : Qt::Vertical,
                               _random.bounded(-300, 300));
                break;
            default:
                view().resize(_random.bounded(100, 600), _random.bounded(100, 600));
                break;
            }
            QVERIFY2(mapsAsExpected(), qPrintable(QStringLiteral("step %1: %2").arg(i).arg(move)));
        }
    }

    void a_scroll_bar_that_is_moved_pans_and_goes_back()
    {
        panByScrollBar(Qt::Horizontal, 37);
        QVERIFY(mapsAsExpected());
        panByScrollBar(Qt::Vertical, -21);
        QVERIFY(mapsAsExpected());
        QCOMPARE(pan(), (Math::Point2d{-35, 23}));
    }

    void resets_take_back_zoom_pan_or_both()
    {
        const auto disturb = [&] {
            view().onActionResetView();
            _expected = {};
            dragZoomTo(45);
            panByHand(QPoint(33, -70));
        };
        disturb();
        view().onActionResetZoom();
        _expected.level = 0;
        QVERIFY(mapsAsExpected());
        QVERIFY(_expected.x != 2.0 && _expected.y != 2.0);
        disturb();
        view().onActionResetPan();
        _expected.x = _expected.y = 2.0;
        QVERIFY(mapsAsExpected());
        QCOMPARE(_expected.level, 45);
        disturb();
        view().onActionResetView();
        _expected = {};
        QVERIFY(mapsAsExpected());
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtZoom)
#include "tst_GV_GraphXViewQtZoom.moc"
