// SPDX-License-Identifier: MIT

#include "graphview/GV_WorldViewQt.h"
#include "host/preferences/PR_Preference.h"
#include "tests/graphview/OverviewTest.h"

#include <QRandomGenerator>
#include <utility>

namespace {

const QString lineColorKey = QStringLiteral("ST_3DNODEVIEW_NETWORK_COLOR");

} // namespace

/// When the overview draws the graph, and when it only shows it again.
class tst_GV_OverviewRedraws : public OverviewTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        PR_Preference::instance()->reset(lineColorKey);
        StageTest::cleanup();
    }

    void pans_and_zooms_within_the_graph_do_not_draw_it_again()
    {
        for (int i = 0; i < 8; ++i)
            _stage->addElement(QString::number(i), ModelBuilder::chain(100));
        _stage->select({&_stage->addElement(QStringLiteral("last"), ModelBuilder::chain(100))});
        QVERIFY(show());
        view().handleNavigatorPan({-300, -800});
        kept();
        const QTransform fit = navigator().transform();
        const qint64 picture = pictureShown();
        QVERIFY(picture != 0);
        QRandomGenerator random(5);
        for (int i = 0; i < 200; ++i) {
            const QPointF wanted(300 + random.bounded(100), 800 + random.bounded(900));
            const QRectF area = visibleArea();
            view().handleNavigatorPan({area.x() - wanted.x(), area.y() - wanted.y()});
            if (i % 10 == 3)
                view().onActionZoomIn();
            else if (i % 10 == 8)
                view().onActionZoomOut();
            QVERIFY(navigator().transform() == fit);
            const QImage shown = kept();
            if (i % 20 == 0)
                QVERIFY(shown == drawn());
        }
        QCOMPARE(pictureShown(), picture);
    }

    void another_fit_draws_it_once()
    {
        addSelected(ModelBuilder::chain(20));
        QVERIFY(show());
        kept();
        const qint64 picture = pictureShown();
        QVERIFY(picture != 0);
        view().handleNavigatorPan({-5000, 0});
        kept();
        const qint64 farther = pictureShown();
        QVERIFY(farther != picture);
        kept();
        QCOMPARE(pictureShown(), farther);
        view().worldView()->resize(150, 120);
        kept();
        QVERIFY(pictureShown() != farther);
    }

    void what_is_seen_draws_it_once()
    {
        MO_ElementModule& element = addSelected(robotModel());
        QVERIFY(show());
        kept();
        qint64 picture = pictureShown();
        const auto drawsOnceMore = [&] {
            kept();
            const qint64 before = std::exchange(picture, pictureShown());
            kept();
            return before != picture && pictureShown() == picture;
        };
        _stage->subSelect(element, {QStringLiteral("leg")});
        QVERIFY(drawsOnceMore());
        view().onActionHideNodes();
        QVERIFY(drawsOnceMore());
        view().onActionCollapseAllNodes();
        QVERIFY(drawsOnceMore());
        element.setInstanceName(QStringLiteral("other"));
        _stage->notify();
        QVERIFY(drawsOnceMore());
        PR_Preference::instance()->setRgbaValue(lineColorKey, 0x80102030);
        QVERIFY(drawsOnceMore());
        QVERIFY(kept() == drawn());
    }

    void clicks_on_boxes_too_small_for_a_colour_do_not_draw_it_again()
    {
        ModelBuilder::Parts ribs;
        for (int i = 0; i < 500; ++i)
            ribs.push_back(shapedKey("rib " + std::to_string(i)));
        addSelected(ModelBuilder::model(ModelBuilder::key("spine", ribs)));
        QVERIFY(show());
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, QPoint(120, 2 + 2 * 34 + 12));
        QVERIFY(navigator().transform().m22() * 24 < 1);
        kept();
        const qint64 picture = pictureShown();
        QVERIFY(picture != 0);
        QStringList selected = _stage->selectedNames();
        for (int row = 3; row < 8; ++row) {
            QTest::mouseClick(view().viewport(), Qt::LeftButton, {},
                              QPoint(120, 2 + row * 34 + 12));
            QVERIFY(_stage->selectedNames() != selected);
            selected = _stage->selectedNames();
            QVERIFY(kept() == drawn());
        }
        QCOMPARE(pictureShown(), picture);
        view().onActionHideNodes();
        QVERIFY(kept() == drawn());
        QCOMPARE(pictureShown(), picture);
    }
};

QTEST_MAIN(tst_GV_OverviewRedraws)
#include "tst_GV_OverviewRedraws.moc"
