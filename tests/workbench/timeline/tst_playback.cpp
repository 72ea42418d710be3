// SPDX-License-Identifier: MIT
#include "workbench/timeline/Playback.h"

#include "tests/workbench/timeline/TimelineTest.h"

#include <QSignalSpy>
#include <QSpinBox>

/// Playing the scene, by a clock that the test sets.
class tst_playback : public TimelineTest
{
    Q_OBJECT

private:
    qint64 _now = 0;

    Playback& playback() { return _dock->playback(); }
    QAction& playAction() { return *_dock->transport().playAction(); }

private slots:
    void initTestCase() { makeModels(); }
    void cleanupTestCase() { closeModels(); }
    void init()
    {
        openTimeline();
        _now = 0;
        playback().setClock([this] { return _now; });
    }
    void cleanup() { closeTimeline(); }

    void the_range_follows_the_scene()
    {
        QCOMPARE(playback().firstFrame(), 1);
        QCOMPARE(playback().lastFrame(), 14);
        _car->exposeModel(30, 40, _modelA);
        tell();
        QCOMPARE(playback().lastFrame(), 41);
        _session->closeScene();
        QCOMPARE(playback().lastFrame(), 1);
        QVERIFY(!playAction().isEnabled());
    }

    void frames_follow_the_clock_and_are_dropped_when_it_is_late()
    {
        playback().setFramesPerSecond(10);
        playback().play();
        QVERIFY(playback().isPlaying());
        QCOMPARE(frame(), 1);
        _now = 100;
        QTRY_COMPARE(frame(), 2);
        // Half a second goes by before the view comes to show anything.
        _now = 650;
        QTRY_COMPARE(frame(), 7);
    }

    void playing_stops_on_the_last_frame_and_begins_anew()
    {
        QSignalSpy changed(&playback(), &Playback::playingChanged);
        playback().play();
        _now = 3600 * 1000;
        QTRY_VERIFY(!playback().isPlaying());
        QCOMPARE(frame(), 14);
        QCOMPARE(changed.count(), 2);
        playback().play();
        QCOMPARE(frame(), 1);
        QVERIFY(playback().isPlaying());
    }

    void a_loop_goes_on_from_the_first_frame()
    {
        playback().setLoops(true);
        playback().setFramesPerSecond(10);
        goTo(13);
        playback().play();
        _now = 100;
        QTRY_COMPARE(frame(), 14);
        _now = 200;
        QTRY_COMPARE(frame(), 1);
        _now = 200 + 14 * 100 * 1000 + 300;
        QTRY_COMPARE(frame(), 4);
        QVERIFY(playback().isPlaying());
        playback().stop();
        QCOMPARE(frame(), 4);
    }

    void another_rate_counts_from_the_frame_that_is_shown()
    {
        playback().setFramesPerSecond(10);
        playback().play();
        _now = 300;
        QTRY_COMPARE(frame(), 4);
        playback().setFramesPerSecond(20);
        _now = 400;
        QTRY_COMPARE(frame(), 6);
    }

    void playing_goes_on_from_where_the_user_goes()
    {
        playback().setFramesPerSecond(10);
        playback().play();
        _now = 100;
        QTRY_COMPARE(frame(), 2);
        goTo(8);
        _now = 200;
        QTRY_COMPARE(frame(), 9);
        goTo(100);
        QVERIFY(!playback().isPlaying());
        QCOMPARE(frame(), 100);
    }

    void frames_that_go_away_stop_it()
    {
        playback().setFramesPerSecond(10);
        playback().play();
        _now = 1100;
        QTRY_COMPARE(frame(), 12);
        _robot->exposeModel(9, 20, nullptr);
        tell();
        QVERIFY(!playback().isPlaying());
        QCOMPARE(frame(), 12);
    }

    void it_stops_when_the_scene_changes()
    {
        playback().play();
        _session->openScene(QStringLiteral("other"));
        QVERIFY(!playback().isPlaying());
        fillScene();
        playback().play();
        QVERIFY(playback().isPlaying());
        _session->closeScene();
        QVERIFY(!playback().isPlaying());
        playback().play();
        QVERIFY(!playback().isPlaying());
    }

    void numbers_out_of_range_are_taken_as_the_nearest()
    {
        playback().setFramesPerSecond(0);
        QCOMPARE(playback().framesPerSecond(), 1);
        playback().setFramesPerSecond(100000);
        QCOMPARE(playback().framesPerSecond(), Playback::highestRate);
        playback().setRange(-5, -9);
        QCOMPARE(playback().firstFrame(), 1);
        QCOMPARE(playback().lastFrame(), 1);
        playback().play();
        QVERIFY(!playback().isPlaying());
    }

    void space_plays_and_pauses()
    {
        QCOMPARE(playAction().text(), QStringLiteral("Play"));
        key(Qt::Key_Space);
        QVERIFY(playback().isPlaying());
        QCOMPARE(playAction().text(), QStringLiteral("Pause"));
        QVERIFY(playAction().toolTip().startsWith(QStringLiteral("Pause")));
        key(Qt::Key_Space);
        QVERIFY(!playback().isPlaying());
        QCOMPARE(playAction().text(), QStringLiteral("Play"));
        key(Qt::Key_L);
        QVERIFY(playback().loops());
        key(Qt::Key_L);
        QVERIFY(!playback().loops());
    }

    void the_buttons_tell_what_they_do()
    {
        QCOMPARE(playback().framesPerSecond(), 24);
        auto* rate = _dock->findChild<QSpinBox*>(QStringLiteral("FramesPerSecond"));
        QVERIFY(rate);
        rate->setValue(12);
        QCOMPARE(playback().framesPerSecond(), 12);
        for (const QAction* action : _dock->transport().transportActions()) {
            const QWidget* button =
                _dock->transport().widgetForAction(const_cast<QAction*>(action));
            QVERIFY(button);
            QCOMPARE(button->accessibleName(), action->text());
            const QString key = action->shortcut().toString(QKeySequence::NativeText);
            QVERIFY(!key.isEmpty());
            QVERIFY(action->toolTip().contains(key));
            QVERIFY(!action->icon().isNull());
        }
    }

    void the_buttons_are_seen_on_dark_and_on_light()
    {
        TransportBar& bar = _dock->transport();
        for (const QColor text : {QColor(Qt::white), QColor(Qt::black)}) {
            QPalette palette = bar.palette();
            palette.setColor(QPalette::ButtonText, text);
            bar.setPalette(palette);
            const QImage sign = playAction().icon().pixmap(16, 16).toImage();
            bool drawn = false;
            for (int x = 0; x < sign.width(); ++x)
                drawn = drawn || sign.pixelColor(x, sign.height() / 2) == text;
            QVERIFY(drawn);
        }
    }

    void the_real_clock_plays_too()
    {
        playback().setClock({});
        playback().setFramesPerSecond(240);
        key(Qt::Key_Space);
        QTRY_VERIFY(!playback().isPlaying());
        QCOMPARE(frame(), 14);
    }
};

QTEST_MAIN(tst_playback)
#include "tst_playback.moc"
