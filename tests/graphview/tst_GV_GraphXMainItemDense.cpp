// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "host/preferences/PR_Preference.h"
#include "tests/graphview/PaintedCalls.h"
#include "tests/graphview/PlainGraphPainting.h"
#include "tests/graphview/StageTest.h"

#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

using namespace ModelBuilder;

namespace {

const QString lineKey = QStringLiteral("ST_3DNODEVIEW_NETWORK_COLOR");

/// An overview so small that hundreds of rows fall on a pixel.
struct Overview
{
    QSize size;
    QTransform transform;

    template <class Paint>
    QImage picture(const Paint& paint) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor(120, 120, 120));
        QPainter painter(&image);
        painter.setTransform(transform);
        paint(painter);
        return image;
    }
};

Overview randomOverview(QRandomGenerator& random, const QRectF& graph)
{
    const QSize size(60 + random.bounded(80), 40 + random.bounded(80));
    const double scale = (size.height() - 1) / (graph.height() * (1.0 + random.generateDouble()));
    const double x = size.width() * 0.5 * random.generateDouble();
    const double y = 3.0 * random.generateDouble();
    return {size, QTransform(scale, 0, 0, scale, x, y)};
}

} // namespace

/// Where rows lie so densely that boxes cover each other, most are left out, and nothing else
/// changes.
class tst_GV_GraphXMainItemDense : public StageTest
{
    Q_OBJECT

private:
    /// How many of the overviews of the graph differ from the plain painting.
    int differences(QRandomGenerator& random, const QColor& lineColor, int count)
    {
        GV_GraphXMainItem item(controller(), true);
        int different = 0;
        for (int i = 0; i < count; ++i) {
            const Overview overview = randomOverview(random, item.boundingRect());
            const QImage plain = overview.picture([&](QPainter& painter) {
                PlainGraphPainting(*controller(), std::nullopt, lineColor).paint(painter);
            });
            const QImage drawn = overview.picture(
                [&](QPainter& painter) { item.paint(&painter, nullptr, nullptr); });
            different += plain == drawn ? 0 : 1;
        }
        return different;
    }

private slots:
    void cleanup()
    {
        PR_Preference::instance()->reset(lineKey);
        PR_Preference::instance()->reset(QStringLiteral("GV_EXTENDED_DISPLAY"));
        StageTest::cleanup();
    }

    void a_dense_overview_is_the_same_as_the_plain_painting()
    {
        QRandomGenerator random(7);
        for (int tree = 0; tree < 6; ++tree) {
            PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), true);
            _stage = nullptr;
            _stage = std::make_unique<GraphStage>();
            addSelected(randomModel(random.generate(), 15000 + random.bounded(10000)));
            for (int state = 0; state < 2; ++state) {
                QCOMPARE(differences(random, Qt::white, 8), 0);
                for (GV_UiNode* node : std::vector(_stage->graph().shownRows().nodes())) {
                    if (node->parent() && random.bounded(50) == 0)
                        node->setCollapsed(true);
                }
                _stage->graph().calculateGeometricData();
            }
        }
    }

    void translucent_lines_are_all_drawn()
    {
        PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), true);
        PR_Preference::instance()->setRgbaValue(lineKey, 0x40ffffff);
        addSelected(randomModel(3, 20000));
        QRandomGenerator random(8);
        QCOMPARE(differences(random, QColor::fromRgba(0x40ffffff), 4), 0);
    }

    void most_of_a_dense_overview_is_left_out()
    {
        PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), true);
        addSelected(randomModel(3, 20000));
        const QRectF graph = GV_GraphXMainItem(controller(), true).boundingRect();
        GV_DrawnCells cells;
        const double scale = 20.0 / graph.height();
        cells.start(true, QTransform::fromScale(scale, scale));
        int drawn = 0;
        for (const GV_UiNode* node : _stage->graph().shownRows().nodes())
            drawn += cells.isNew(QRectF(0, node->row() * 34.0, 136, 24)) ? 1 : 0;
        // A box can begin in one of 64 cells a pixel and end in one of three.
        QVERIFY2(drawn > 0 && drawn <= 20 * 64 * 3, qPrintable(QString::number(drawn)));
    }
};

QTEST_MAIN(tst_GV_GraphXMainItemDense)
#include "tst_GV_GraphXMainItemDense.moc"
