// SPDX-License-Identifier: MIT
#include "workbench/timeline/FrameAxis.h"

#include <QRegularExpression>
#include <QTest>
#include <limits>

/// Where frames lie on a line of pixels.
class tst_frame_axis : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); }

    void a_frame_takes_up_the_pixels_up_to_the_next()
    {
        const FrameAxis axis;
        QCOMPARE(axis.xOf(1), 0.0);
        QCOMPARE(axis.xOf(4), 30.0);
        QCOMPARE(axis.frameAt(0), 1);
        QCOMPARE(axis.frameAt(29.9), 3);
        QCOMPARE(axis.frameAt(30), 4);
        QCOMPARE(axis.framesIn(100), 10);
        QCOMPARE(axis.framesIn(3), 1);
    }

    void pixels_outside_all_frames_give_the_nearest()
    {
        FrameAxis axis;
        QCOMPARE(axis.frameAt(-1e9), 1);
        QCOMPARE(axis.frameAt(1e30), std::numeric_limits<int>::max());
        axis.setOrigin(-20);
        QCOMPARE(axis.origin(), 1.0);
    }

    void zooming_keeps_the_frame_below_the_pointer()
    {
        FrameAxis axis;
        axis.setOrigin(100);
        for (const double factor : {1.25, 3.0, 0.5, 0.3}) {
            const double x = axis.xOf(120.5);
            axis.zoom(factor, x);
            QCOMPARE(axis.xOf(120.5), x);
        }
    }

    void zooming_out_brings_no_frames_below_1_into_view()
    {
        FrameAxis axis;
        axis.setOrigin(10);
        axis.zoom(0.1, 500);
        QCOMPARE(axis.origin(), 1.0);
    }

    void zooming_has_limits()
    {
        FrameAxis axis;
        axis.zoom(1e9, 0);
        QCOMPARE(axis.pixelsPerFrame(), 64.0);
        axis.zoom(1e-9, 0);
        QCOMPARE(axis.pixelsPerFrame(), 1.0 / 256);
    }

    void labels_are_round_and_far_enough_apart()
    {
        FrameAxis axis;
        QCOMPARE(axis.labelDistance(5), qint64(1));
        QCOMPARE(axis.labelDistance(10), qint64(1));
        QCOMPARE(axis.labelDistance(11), qint64(2));
        QCOMPARE(axis.labelDistance(50), qint64(5));
        QCOMPARE(axis.labelDistance(51), qint64(10));
        axis.zoom(0.1, 0);
        QCOMPARE(axis.labelDistance(150), qint64(200));
        axis.zoom(1e-9, 0);
        QCOMPARE(axis.labelDistance(300), qint64(100000));
    }
};

QTEST_GUILESS_MAIN(tst_frame_axis)
#include "tst_frame_axis.moc"
