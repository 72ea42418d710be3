// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/scene/MO_ElementModule.h"
#include "tests/graphview/GraphStage.h"
#include "tests/graphview/RecordingPaintDevice.h"
#include "tests/graphview/ShownModels.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QPainter>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

/// Shows what the viewport of a view shows, by replaying calls that nothing was left out of.
class Replay : public QWidget
{
public:
    explicit Replay(GV_GraphXViewQt& view)
        : _view(view)
    {
        resize(view.viewport()->size());
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        RecordingPaintDevice device;
        QPainter recorder(&device);
        recorder.setTransform(_view.viewportTransform());
        _view.mainItem()->paint(&recorder, nullptr, nullptr);

        QPainter painter(this);
        painter.fillRect(rect(), _view.backgroundBrush());
        painter.setRenderHints(painter.renderHints(), false);
        painter.setRenderHints(_view.renderHints());
        painter.setWorldTransform(_view.viewportTransform());
        device.replay(painter);
    }

private:
    GV_GraphXViewQt& _view;
};

} // namespace

/// What the panel looks like on its window and on other devices.
class tst_GV_GraphXViewQtPicture : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<GraphStage> _stage;

    GV_GraphXViewQt& view() { return _stage->view(); }
    MO_ElementModule& show(const CEL_SharedPtr<TD_CelVq3d>& model)
    {
        MO_ElementModule& element = _stage->addElement(QStringLiteral("robot"), model);
        _stage->select({&element});
        view().setFrameShape(QFrame::NoFrame);
        view().move(100, 100);
        view().resize(330, 260);
        view().show();
        return element;
    }
    static CEL_SharedPtr<TD_CelVq3d> longModel()
    {
        Parts ribs;
        for (int i = 0; i < 30000; ++i)
            ribs.push_back(shapedKey("rib " + std::to_string(i)));
        return model(key("spine", ribs));
    }

    /// A widget rendered on an image like this.
    static QImage rendered(QWidget& widget, const QSize& size, qreal pixelRatio, qreal scale,
                           const QPoint& offset)
    {
        QImage image(size * pixelRatio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(pixelRatio);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        painter.scale(scale, scale);
        widget.render(&painter, offset);
        return image;
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _stage = std::make_unique<GraphStage>();
    }
    void cleanup() { _stage.reset(); }

    void a_grab_misses_nothing()
    {
        QRandomGenerator random(1);
        show(randomModel(5, 60));
        QVERIFY(QTest::qWaitForWindowExposed(&view()));
        for (int round = 0; round < 40; ++round) {
            const double zoom = std::exp2(random.bounded(-192, 129) / 32.0);
            view().setTransform(
                QTransform(zoom, 0, 0, zoom, random.bounded(-300, 300), random.bounded(-400, 200)));
            view().setRenderHint(QPainter::Antialiasing, round % 2);
            const QImage grabbed = view().viewport()->grab().toImage();
            const QImage replayed = Replay(view()).grab().toImage();
            QVERIFY2(grabbed == replayed, qPrintable(QString::number(zoom)));
        }
    }

    void a_view_rendered_elsewhere_misses_nothing()
    {
        QRandomGenerator random(2);
        show(randomModel(6, 60));
        for (int round = 0; round < 40; ++round) {
            const double zoom = std::exp2(random.bounded(-96, 64) / 32.0);
            view().setTransform(
                QTransform(zoom, 0, 0, zoom, random.bounded(-200, 200), random.bounded(-200, 100)));
            const qreal ratio = round % 3 ? round % 3 : 1.5;
            const qreal scale = round % 2 ? 1.0 : 0.5;
            const QPoint offset(random.bounded(-120, 60) * 2, random.bounded(-120, 60) * 2);
            const QSize size(200, 180);
            Replay replay(view());
            const QImage actual = rendered(*view().viewport(), size, ratio, scale, offset);
            const QImage expected = rendered(replay, size, ratio, scale, offset);
            QVERIFY2(actual == expected,
                     qPrintable(QStringLiteral("zoom %1 ratio %2 scale %3 offset %4 %5")
                                    .arg(zoom)
                                    .arg(ratio)
                                    .arg(scale)
                                    .arg(offset.x())
                                    .arg(offset.y())));
        }
    }

    void far_rows_miss_nothing()
    {
        show(longModel());
        QVERIFY(QTest::qWaitForWindowExposed(&view()));
        for (const double zoom : {0.25, 1.0, 8.0}) {
            for (const double row : {0.0, 15000.0, 29990.0, 30005.0}) {
                view().setTransform(QTransform(zoom, 0, 0, zoom, 2, std::floor(-row * 34 * zoom)));
                const QImage grabbed = view().viewport()->grab().toImage();
                QVERIFY(grabbed == Replay(view()).grab().toImage());
            }
        }
    }

    void a_box_cut_by_an_edge_is_painted()
    {
        show(model(shapedKey("body")));
        QVERIFY(QTest::qWaitForWindowExposed(&view()));
        const int right = view().viewport()->width() - 1;
        const int bottom = view().viewport()->height() - 1;
        // The header is 136 wide and 24 high; three pixels of it are in view.
        const std::vector<std::pair<QPoint, QPoint>> cuts{{{-133, 50}, {0, 62}},
                                                          {{50, -21}, {100, 0}},
                                                          {{right - 2, 50}, {right, 62}},
                                                          {{50, bottom - 2}, {100, bottom}}};
        for (const auto& [pan, pixel] : cuts) {
            view().setTransform(QTransform::fromTranslate(pan.x(), pan.y()));
            const QImage grabbed = view().viewport()->grab().toImage();
            QCOMPARE(grabbed.pixelColor(pixel), QColor(90, 155, 240));
        }
    }

    void only_the_part_that_has_to_be_painted_may_be_painted()
    {
        show(randomModel(5, 60));
        QVERIFY(QTest::qWaitForWindowExposed(&view()));
        const QImage whole = view().viewport()->grab().toImage();
        for (const QRect part : {QRect(0, 0, 10, 10), QRect(20, 60, 90, 3), QRect(35, 30, 2, 200)})
            QCOMPARE(view().viewport()->grab(part).toImage(), whole.copy(part));
    }

    void looks_like_this()
    {
        MO_ElementModule& element = show(
            model(key("body", {key("arm_left", {shapedKey("hand_left")}),
                               key("arm_right_with_a_very_long_name", {shapedKey("hand_right")}),
                               shapedKey(noName), key("leg", {shapedKey("foot")})})));
        _stage->addElement(QStringLiteral("second"));
        _stage->subSelect(element, {QStringLiteral("hand_left"), QStringLiteral("leg")});
        _stage->setVisible(element, {QStringLiteral("hand_right"), QStringLiteral("leg")}, false);
        _stage->node(QStringLiteral("leg"))->setCollapsed(true);
        _stage->graph().calculateGeometricData();
        view().resize(330, 320);
        QVERIFY(QTest::qWaitForWindowExposed(&view()));
        const QImage small = view().grab().toImage();
        QVERIFY(small.save(QStringLiteral("graph_view.png")));
        // The boxes, the lines between them and the sign of the folded branch.
        QCOMPARE(small.pixelColor(2 + 130, 2 + 12), QColor(90, 155, 240));
        QCOMPARE(small.pixelColor(2 + 24 + 130, 2 + 34 + 12), QColor(69, 90, 163));
        QCOMPARE(small.pixelColor(2 + 12, 2 + 40), QColor(Qt::white));
        for (const double zoom : {0.4, 4.0}) {
            view().setTransform(QTransform(zoom, 0, 0, zoom, 2, zoom > 1 ? -100 : 2));
            QVERIFY(view().grab().save(
                QStringLiteral("graph_view_%1.png").arg(zoom > 1 ? "near" : "far")));
        }
        view().setTransform(QTransform(1, 0, 0, 1, 2, 2));
        QVERIFY(rendered(view(), QSize(330, 320), 2, 1, {})
                    .save(QStringLiteral("graph_view_dense.png")));
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtPicture)
#include "tst_GV_GraphXViewQtPicture.moc"
