// SPDX-License-Identifier: MIT

#include "host/preferences/PR_Preference.h"
#include "tests/graphview/CanvasTest.h"

#include <QRandomGenerator>
#include <QScopeGuard>

namespace {

constexpr double farthestPan = 7812500.0;

} // namespace

/// How far one turn of the wheel or one action zooms, about which point, and where it ends.
class tst_GV_GraphXViewQtZoomSteps : public CanvasTest
{
    Q_OBJECT

private slots:
    void init()
    {
        StageTest::init();
        QVERIFY(definePanKey());
        QVERIFY(show());
        QCOMPARE(factor(), 1.0);
        QCOMPARE(pan(), (Math::Point2d{2, 2}));
    }

    void zooming_in_stops_at_a_factor_of_16()
    {
        for (int i = 0; i < 60; ++i)
            view().onActionZoomIn();
        QCOMPARE(factor(), 16.0);
        const Math::Point2d before = pan();
        view().onActionZoomIn();
        turnWheel(QPoint(10, 10), 120);
        QCOMPARE(factor(), 16.0);
        QCOMPARE(pan(), before);
    }

    void zooming_out_stops_at_a_factor_of_one_64th()
    {
        for (int i = 0; i < 60; ++i)
            view().onActionZoomOut();
        QCOMPARE(factor(), 1.0 / 64);
        const Math::Point2d before = pan();
        view().onActionZoomOut();
        turnWheel(QPoint(10, 10), -120);
        QCOMPARE(factor(), 1.0 / 64);
        QCOMPARE(pan(), before);
    }

    void a_drag_past_the_limits_keeps_the_anchor_in_place()
    {
        for (const int pixels : {5000, -5000, 129, -193}) {
            view().onActionResetView();
            const QPoint anchor(320, 150);
            const Math::Point2d under = view().screenToModel({320, 150});
            dragZoom(anchor, pixels);
            QCOMPARE(factor(), pixels > 0 ? 16.0 : 1.0 / 64);
            const Math::Point2d after = view().modelToScreen(under);
            QVERIFY(isNear(after, 320, 150));
        }
    }

    void the_wheel_keeps_what_is_under_the_mouse()
    {
        QRandomGenerator random(3);
        for (int i = 0; i < 40; ++i) {
            const QPoint pixel(random.bounded(590), random.bounded(390));
            const Math::Point2d under =
                view().screenToModel({double(pixel.x()), double(pixel.y())});
            turnWheel(pixel, i % 3 ? 120 : -120);
            QCOMPARE(view().mapFromScene(QPointF(under.x, under.y)), pixel);
            const Math::Point2d after = view().modelToScreen(under);
            QVERIFY(isNear(after, pixel.x(), pixel.y()));
        }
    }

    void the_actions_keep_what_is_in_the_middle()
    {
        view().resize(501, 303);
        const Math::Point2d middle{250, 151};
        const Math::Point2d under = view().screenToModel(middle);
        view().onActionZoomIn();
        QCOMPARE(factor(), std::pow(2.0, 1.0 / 8.0));
        QVERIFY(isNear(view().modelToScreen(under), middle.x, middle.y));
        for (int i = 0; i < 3; ++i)
            view().onActionZoomOut();
        QCOMPARE(factor(), std::pow(2.0, -2.0 / 8.0));
        QVERIFY(isNear(view().modelToScreen(under), middle.x, middle.y));
    }

    void two_steps_in_and_two_out_restore_the_factor()
    {
        dragZoom(QPoint(40, 200), -13);
        const double before = factor();
        const Math::Point2d panBefore = pan();
        view().onActionZoomIn();
        view().onActionZoomIn();
        QVERIFY(factor() > before);
        view().onActionZoomOut();
        view().onActionZoomOut();
        QVERIFY(factor() == before);
        QVERIFY(isNear(pan(), panBefore.x, panBefore.y));
    }

    void a_wheel_step_takes_more_than_50()
    {
        const QPoint pixel(120, 90);
        turnWheel(pixel, 120);
        QCOMPARE(factor(), std::pow(2.0, 4 / 32.0));
        turnWheel(pixel, 50);
        QCOMPARE(factor(), std::pow(2.0, 4 / 32.0));
        turnWheel(pixel, 1);
        QCOMPARE(factor(), std::pow(2.0, 8 / 32.0));
        // The step has used up what was turned so far.
        turnWheel(pixel, 50);
        QCOMPARE(factor(), std::pow(2.0, 8 / 32.0));
        turnWheel(pixel, -50);
        turnWheel(pixel, -50);
        QCOMPARE(factor(), std::pow(2.0, 8 / 32.0));
        turnWheel(pixel, -1);
        QCOMPARE(factor(), std::pow(2.0, 4 / 32.0));
        turnWheel(pixel, -51);
        QCOMPARE(factor(), 1.0);
    }

    void a_preferred_threshold_counts_from_the_next_start_on()
    {
        const QString key = QStringLiteral("WHEEL_ZOOM_THRESHOLD");
        const auto reset = qScopeGuard([&] { PR_Preference::instance()->reset(key); });
        turnWheel(QPoint(120, 90), 120);
        PR_Preference::instance()->setIntValue(key, 500);
        turnWheel(QPoint(120, 90), 51);
        QCOMPARE(factor(), std::pow(2.0, 8 / 32.0));
        PR_Preference::instance()->setIntValue(key, 10);
        turnWheel(QPoint(120, 90), -50);
        QCOMPARE(factor(), std::pow(2.0, 8 / 32.0));
    }

    void a_wheel_turned_far_at_once_is_one_step()
    {
        turnWheel(QPoint(120, 90), 1200);
        QCOMPARE(factor(), std::pow(2.0, 4 / 32.0));
        turnWheel(QPoint(120, 90), -1200);
        QCOMPARE(factor(), 1.0);
        turnWheel(QPoint(120, 90), 0);
        QCOMPARE(factor(), 1.0);
    }

    void the_overview_pans_in_model_units_up_to_an_end()
    {
        dragZoom(QPoint(40, 200), 32);
        const Math::Point2d before = pan();
        view().handleNavigatorPan({10, -3});
        QVERIFY(isNear(pan(), before.x + 20, before.y - 6));
        view().handleNavigatorPan({1e8, -1e8});
        QCOMPARE(pan(), (Math::Point2d{farthestPan, -farthestPan}));
        view().handleNavigatorPan({1, -1});
        QCOMPARE(pan(), (Math::Point2d{farthestPan, -farthestPan}));
        view().handleNavigatorPan({-1, 0});
        QCOMPARE(pan(), (Math::Point2d{farthestPan - 2, -farthestPan}));
        view().handleNavigatorPan({-1e8, 1e8});
        QCOMPARE(pan(), (Math::Point2d{-farthestPan, farthestPan}));
    }
};

QTEST_MAIN(tst_GV_GraphXViewQtZoomSteps)
#include "tst_GV_GraphXViewQtZoomSteps.moc"
