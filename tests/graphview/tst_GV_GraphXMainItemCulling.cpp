// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "tests/graphview/GraphStage.h"
#include "tests/graphview/PlainGraphPainting.h"
#include "tests/graphview/RecordingPaintDevice.h"
#include "tests/graphview/ShownModels.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QPainter>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace ModelBuilder;

namespace {

const QString extendedKey = QStringLiteral("GV_EXTENDED_DISPLAY");

/// What a picture is painted on, and how.
struct Target
{
    QSize size;
    qreal pixelRatio = 1;
    bool antialiased = false;
    QTransform transform;

    template <class Paint>
    QImage picture(const Paint& paint) const
    {
        QImage image(size * pixelRatio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(pixelRatio);
        image.fill(QColor(120, 120, 120));
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, antialiased);
        painter.setTransform(transform);
        paint(painter);
        return image;
    }

    /// The part of the model plane that the picture shows.
    QRectF modelArea() const { return transform.inverted().mapRect(QRectF(QPointF(), size)); }

    QByteArray description() const
    {
        return QStringLiteral("%1x%2 ratio %3 antialiased %4 scale %5 %6 pan %7 %8")
            .arg(size.width())
            .arg(size.height())
            .arg(pixelRatio)
            .arg(antialiased)
            .arg(transform.m11())
            .arg(transform.m22())
            .arg(transform.dx())
            .arg(transform.dy())
            .toUtf8();
    }
};

/// What the item paints where nothing can be known of the pixels, painted again on the target.
QImage unculledPicture(const Target& target, GV_GraphXMainItem& item)
{
    RecordingPaintDevice device;
    QPainter recorder(&device);
    recorder.setTransform(target.transform);
    item.paint(&recorder, nullptr, nullptr);
    return target.picture([&](QPainter& painter) { device.replay(painter); });
}

QImage culledPicture(const Target& target, GV_GraphXMainItem& item)
{
    return target.picture([&](QPainter& painter) { item.paint(&painter, nullptr, nullptr); });
}

double oneOf(QRandomGenerator& random, std::initializer_list<double> values)
{
    return values.begin()[random.bounded(static_cast<int>(values.size()))];
}

/// Zooms and pans that show some of the area, or just miss it.
QTransform randomTransform(QRandomGenerator& random, const QRectF& area, const QSize& size)
{
    const double zoom = oneOf(random, {1.0 / 64, 0.1, 0.3, 0.625, 1, 1, 1.5, 4, 16});
    const QPointF middle(area.x() + random.generateDouble() * area.width(),
                         area.y() + random.generateDouble() * area.height());
    QTransform transform;
    transform.translate(size.width() / 2.0, size.height() / 2.0);
    if (random.bounded(6) == 0)
        transform.rotate(random.bounded(360));
    if (random.bounded(12) == 0)
        transform.scale(1, -1);
    transform.scale(zoom, zoom);
    transform.translate(-middle.x(), -middle.y());
    // Whole pixels as the view pans, or anything between.
    return random.bounded(2)
               ? transform
               : QTransform(transform.m11(), transform.m12(), transform.m21(), transform.m22(),
                            std::floor(transform.dx()), std::floor(transform.dy()));
}

Target randomTarget(QRandomGenerator& random, const QRectF& area)
{
    Target target;
    target.size = QSize(1 + random.bounded(160), 1 + random.bounded(160));
    target.pixelRatio = oneOf(random, {1, 1.5, 2});
    target.antialiased = random.bounded(2);
    target.transform = randomTransform(random, area, target.size);
    return target;
}

} // namespace

/// What is left out because it is not seen must not be missed.
class tst_GV_GraphXMainItemCulling : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<GraphStage> _stage;

    GV_GraphXViewCtrl* controller() { return _stage->view().controller(); }

    /// A view on one to four random models, some subnodes hidden and selected, some folded.
    void setUpRandomGraph(QRandomGenerator& random, int nodes)
    {
        _stage.reset();
        PR_Preference::instance()->setBoolValue(extendedKey, random.bounded(2));
        _stage = std::make_unique<GraphStage>();
        std::vector<MO_Node*> elements;
        for (int i = random.bounded(4); i >= 0; --i) {
            elements.push_back(
                &_stage->addElement(QStringLiteral("element %1").arg(i),
                                    randomModel(random.generate(), 1 + random.bounded(nodes))));
        }
        _stage->view();
        auto* open = static_cast<MO_ElementModule*>(
            elements[static_cast<std::size_t>(random.bounded(int(elements.size())))]);
        _stage->setVisible(*open, {QStringLiteral("part1"), QStringLiteral("part2")}, false);
        if (random.bounded(10))
            _stage->select({open});
        for (const char* name : {"part2", "part3"})
            _stage->graph().setFirstNodeWithNameSelected(QString::fromLatin1(name));
        if (random.bounded(3))
            foldAtRandom(random, _stage->graph().rootUiNode());
        _stage->graph().calculateGeometricData();
    }
    QRectF graphArea() { return GV_GraphXMainItem(controller(), true).boundingRect(); }
    /// A key node with thousands below it, every tenth of them with a child of its own.
    void setUpLongModel(int rows)
    {
        Parts ribs;
        for (int i = 0; i < rows; ++i) {
            ribs.push_back(
                key("rib " + std::to_string(i),
                    {i % 10 ? geometry(noName) : shapedKey("tip " + std::to_string(i))}));
        }
        _stage = std::make_unique<GraphStage>();
        MO_ElementModule& element =
            _stage->addElement(QStringLiteral("long"), model(key("spine", ribs)));
        _stage->view();
        _stage->select({&element});
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }
    void cleanup()
    {
        _stage.reset();
        PR_Preference::instance()->reset(extendedKey);
    }

    void calls_are_those_of_the_plain_painting()
    {
        QRandomGenerator random(1);
        int boxes = 0;
        for (int round = 0; round < 400; ++round) {
            setUpRandomGraph(random, 100);
            // Folding without a new layout leaves rows behind that are no longer in order.
            if (round % 4 == 0)
                foldAtRandom(random, _stage->graph().rootUiNode());
            const QRectF area = graphArea();
            QRectF view(random.bounded(400) - 100, random.bounded(1000) - 100,
                        random.bounded(900) - 50, random.bounded(2000) - 50);
            if (round % 20 == 0)
                view = round % 40 ? QRectF() : QRectF(-1e6, -1e6, 2e6, 2e6);
            const bool drawEverything = round % 5 == 0;
            const QTransform transform = randomTransform(random, area, QSize(300, 300));

            GV_GraphXMainItem item(controller(), drawEverything);
            item.setViewRectInModelCoord(view);
            RecordingPaintDevice actual;
            RecordingPaintDevice expected;
            for (RecordingPaintDevice* device : {&actual, &expected}) {
                QPainter painter(device);
                painter.setTransform(transform);
                painter.setPen(QColor(200, 0, 0));
                if (device == &actual)
                    item.paint(&painter, nullptr, nullptr);
                else
                    PlainGraphPainting(*controller(),
                                       drawEverything ? std::nullopt : std::optional(view))
                        .paint(painter);
            }
            QCOMPARE(actual.descriptions(), expected.descriptions());
            boxes += static_cast<int>(
                actual.descriptions().filter(QRegularExpression(QStringLiteral("^rect"))).size());
        }
        QVERIFY(boxes > 1000);
    }

    void pictures_of_random_graphs_miss_nothing()
    {
        QRandomGenerator random(2);
        for (int round = 0; round < 120; ++round) {
            setUpRandomGraph(random, 80);
            if (round % 4 == 0)
                foldAtRandom(random, _stage->graph().rootUiNode());
            GV_GraphXMainItem item(controller(), true);
            for (int picture = 0; picture < 4; ++picture) {
                const Target target = randomTarget(random, graphArea().adjusted(-40, -40, 40, 40));
                QVERIFY2(culledPicture(target, item) == unculledPicture(target, item),
                         target.description());
            }
        }
    }

    void pictures_of_far_rows_miss_nothing()
    {
        QRandomGenerator random(3);
        setUpLongModel(30000);
        QCOMPARE(graphArea().height(), (2 + 30000 + 3000) * 34.0);
        GV_GraphXMainItem item(controller(), false);
        const QRectF ends[] = {QRectF(0, 0, 200, 2000), QRectF(0, 1000000, 200, 100000),
                               graphArea(), QRectF(0, 1121500, 200, 1000)};
        for (int round = 0; round < 24; ++round) {
            const Target target = randomTarget(random, ends[round % 4]);
            item.setViewRectInModelCoord(target.modelArea());
            QVERIFY2(culledPicture(target, item) == unculledPicture(target, item),
                     target.description());
        }
    }

    void pictures_follow_folds_without_a_layout_in_long_models()
    {
        QRandomGenerator random(4);
        setUpLongModel(600);
        GV_GraphXMainItem item(controller(), true);
        const std::vector<GV_UiNode*> nodes = preOrder(_stage->graph().rootUiNode());
        for (int round = 0; round < 24; ++round) {
            GV_UiNode* node = nodes[static_cast<std::size_t>(random.bounded(int(nodes.size())))];
            node->setCollapsed(!node->isCollapsed());
            if (round % 3 == 0)
                _stage->graph().calculateGeometricData();
            const Target target = randomTarget(random, graphArea());
            QVERIFY2(culledPicture(target, item) == unculledPicture(target, item),
                     target.description());
        }
    }

    void a_line_at_the_very_edge_of_the_picture_is_not_missed()
    {
        setUpLongModel(40);
        GV_GraphXMainItem item(controller(), true);
        for (const double zoom : {1.0 / 64, 0.25, 1.0, 3.0, 16.0}) {
            // Past the control and the branches of a row in small steps, from both sides.
            for (int step = -8; step < 40 * 4; ++step) {
                Target target{QSize(40, 9), 1, step % 2 == 0, QTransform()};
                target.transform = QTransform(zoom, 0, 0, zoom, 0, -(10 * 34 + step * 0.25) * zoom);
                QVERIFY2(culledPicture(target, item) == unculledPicture(target, item),
                         target.description());
            }
        }
    }
};

QTEST_MAIN(tst_GV_GraphXMainItemCulling)
#include "tst_GV_GraphXMainItemCulling.moc"
