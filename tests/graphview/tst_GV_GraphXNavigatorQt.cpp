// SPDX-License-Identifier: MIT

#include "graphview/GV_GraphXNavigatorQt.h"

#include "tests/graphview/NavigatorTest.h"

#include <QRandomGenerator>

/// How the overview fits the graph and shows the visible area.
class tst_GV_GraphXNavigatorQt : public NavigatorTest
{
    Q_OBJECT

private slots:
    void it_is_a_bare_canvas_of_two_items()
    {
        QCOMPARE(navigator().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(navigator().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(navigator().alignment(), Qt::Alignment());
        QCOMPARE(navigator().transformationAnchor(), QGraphicsView::NoAnchor);
        QVERIFY(view().isAncestorOf(&navigator()));
        QVERIFY(navigator().scene() != view().scene());
        const QList<QGraphicsItem*> items = navigator().scene()->items(Qt::AscendingOrder);
        QCOMPARE(items, (QList<QGraphicsItem*>{navigator().mainItem(), areaItem()}));
        for (const QGraphicsItem* item : items)
            QCOMPARE(item->acceptedMouseButtons(), Qt::NoButton);
    }

    void the_visible_area_is_outlined_in_black()
    {
        QVERIFY(areaItem());
        const QPen expected(QBrush(Qt::black), 0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
        QCOMPARE(areaItem()->pen(), expected);
        QCOMPARE(areaItem()->brush(), QBrush(Qt::NoBrush));
    }

    void the_outline_follows_what_the_view_shows()
    {
        addSelected(ModelBuilder::randomModel(3, 80));
        QVERIFY(show());
        QCOMPARE(areaItem()->rect(), QRectF(-2, -2, 499, 299));
        view().onActionZoomIn();
        QCOMPARE(areaItem()->rect(), visibleArea());
        view().handleNavigatorPan({40, 90});
        QCOMPARE(areaItem()->rect(), visibleArea());
        view().resize(321, 234);
        QCOMPARE(areaItem()->rect(), visibleArea());
        QCOMPARE(areaItem()->rect().size() * view().transform().m11(), QSizeF(320, 233));
    }

    void graph_and_area_fit_whatever_the_sizes_data()
    {
        QTest::addColumn<int>("nodes");
        QTest::addColumn<int>("elements");
        QTest::newRow("tall") << 300 << 1;
        QTest::newRow("wide") << 3 << 40;
        QTest::newRow("even") << 40 << 8;
        QTest::newRow("nothing") << 0 << 0;
    }

    void graph_and_area_fit_whatever_the_sizes()
    {
        QFETCH(const int, nodes);
        QFETCH(const int, elements);
        for (int i = 0; i < elements; ++i) {
            MO_ElementModule& element = _stage->addElement(
                QStringLiteral("element %1").arg(i), ModelBuilder::randomModel(quint32(i), nodes));
            _stage->select({&element});
        }
        QVERIFY(show());
        QRandomGenerator random(7);
        for (int round = 0; round < 100; ++round) {
            navigator().resize(random.bounded(5, 400), random.bounded(5, 400));
            const QRectF area(random.bounded(-900, 900), random.bounded(-900, 900),
                              5 + random.bounded(2000.0), 5 + random.bounded(2000.0));
            navigator().updateMatrix(area);
            QVERIFY2(navigator().transform() == fitted(area),
                     qPrintable(text(navigator().transform()) + " is not " + text(fitted(area))));
            QCOMPARE(areaItem()->rect(), area);
            const QRectF shown =
                navigator().transform().mapRect(navigator().mainItem()->sceneBoundingRect() | area);
            QVERIFY(QRectF(navigator().rect()).adjusted(-1, -1, 1, 1).contains(shown));
            QVERIFY(scrollBarsAreAtRest());
        }
    }

    void pans_zooms_and_resizes_of_the_view_are_followed()
    {
        addSelected(ModelBuilder::randomModel(4, 120));
        QVERIFY(show());
        QRandomGenerator random(8);
        for (int round = 0; round < 100; ++round) {
            switch (random.bounded(4)) {
            case 0:
                view().onActionZoomIn();
                break;
            case 1:
                view().onActionZoomOut();
                break;
            case 2:
                view().handleNavigatorPan(
                    {double(random.bounded(-900, 900)), double(random.bounded(-900, 900))});
                break;
            default:
                view().resize(random.bounded(120, 800), random.bounded(120, 800));
            }
            QVERIFY2(navigator().transform() == fitted(visibleArea()),
                     qPrintable(text(navigator().transform())));
        }
    }

    void resizing_the_navigator_fits_anew()
    {
        addSelected(ModelBuilder::randomModel(5, 200));
        QVERIFY(show());
        const QTransform before = navigator().transform();
        navigator().resize(200, 50);
        QVERIFY(navigator().transform() != before);
        QVERIFY(navigator().transform() == fitted(visibleArea()));
    }

    void a_navigator_below_five_pixels_keeps_its_fit()
    {
        addSelected(ModelBuilder::randomModel(5, 50));
        QVERIFY(show());
        for (const QSize size : {QSize(4, 80), QSize(80, 4), QSize(1, 1), QSize(4, 4)}) {
            navigator().resize(60, 60);
            const QTransform before = navigator().transform();
            QVERIFY(before == fitted(visibleArea()));
            navigator().resize(size);
            const QRectF area(0, 0, 3000, 3000);
            navigator().updateMatrix(area);
            QVERIFY(navigator().transform() == before);
            QCOMPARE(areaItem()->rect(), area);
        }
        for (const QSize size : {QSize(5, 80), QSize(80, 5), QSize(5, 5)}) {
            navigator().resize(size);
            QCOMPARE(navigator().size(), size);
            QVERIFY(navigator().transform() == fitted(visibleArea()));
        }
    }

    void less_than_five_units_keep_the_fit()
    {
        QVERIFY(show());
        QVERIFY(navigator().mainItem()->sceneBoundingRect().isEmpty());
        const QTransform before = navigator().transform();
        for (const QSizeF size : {QSizeF(4.99, 80), QSizeF(80, 4.99), QSizeF(4, 4), QSizeF()}) {
            navigator().updateMatrix(QRectF(QPointF(7, 7), size));
            QVERIFY(navigator().transform() == before);
            QCOMPARE(areaItem()->rect().size(), size);
        }
        const QRectF enough(7, 7, 5, 5);
        navigator().updateMatrix(enough);
        QVERIFY(navigator().transform() != before);
        QVERIFY(navigator().transform() == fitted(enough));
    }
};

QTEST_MAIN(tst_GV_GraphXNavigatorQt)
#include "tst_GV_GraphXNavigatorQt.moc"
