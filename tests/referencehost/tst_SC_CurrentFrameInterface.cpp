// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/scene/MO_BaseContext.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>

#include <optional>

class tst_SC_CurrentFrameInterface : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;
    TUScene _scene{QStringLiteral("Scene"), &_changes};
    TUScene _other{QStringLiteral("Other"), &_changes};

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void starts_at_the_first_frame()
    {
        const SC_CurrentFrameInterface frames(&_changes);
        QCOMPARE(frames.currentFrame(&_scene), 1);
        QCOMPARE(frames.currentFrame(nullptr), 1);
    }

    void keeps_a_frame_for_each_scene()
    {
        SC_CurrentFrameInterface frames(&_changes);
        frames.setCurrentFrame(&_scene, 7);
        frames.setCurrentFrame(&_other, 9);
        QCOMPARE(frames.currentFrame(&_scene), 7);
        QCOMPARE(frames.currentFrame(&_other), 9);
    }

    void gives_a_context_with_scene_and_frame()
    {
        SC_CurrentFrameInterface frames(&_changes);
        frames.setCurrentFrame(&_scene, 7);
        const MO_BaseContext context = frames.frameContext(&_scene);
        QCOMPARE(context.scene(), static_cast<const SC_SceneCommon*>(&_scene));
        QCOMPARE(context.frame(), 7.0);
    }

    void tells_a_move_at_once_and_only_once()
    {
        SC_CurrentFrameInterface frames(&_changes);
        ChangeLog log(_changes);
        frames.setCurrentFrame(&_scene, 7);
        QCOMPARE(log.take(), QStringList{"frame"});
        frames.setCurrentFrame(&_scene, 7);
        QVERIFY(log.told().isEmpty());
    }

    void takes_frames_below_the_first_as_the_first()
    {
        SC_CurrentFrameInterface frames(&_changes);
        frames.setCurrentFrame(&_scene, 7);
        frames.setCurrentFrame(&_scene, -3);
        QCOMPARE(frames.currentFrame(&_scene), 1);
        const ChangeLog log(_changes);
        frames.setCurrentFrame(&_scene, 0);
        QVERIFY(log.told().isEmpty());
    }

    void ignores_a_null_scene()
    {
        SC_CurrentFrameInterface frames(&_changes);
        const ChangeLog log(_changes);
        frames.setCurrentFrame(nullptr, 5);
        QCOMPARE(frames.currentFrame(nullptr), 1);
        QVERIFY(log.told().isEmpty());
    }

    void does_not_hand_the_frame_of_a_dead_scene_to_a_new_one()
    {
        SC_CurrentFrameInterface frames(&_changes);
        std::optional<TUScene> scene;
        scene.emplace(QStringLiteral("First"), &_changes);
        frames.setCurrentFrame(&*scene, 12);
        scene.emplace(QStringLiteral("Second, in the same place"), &_changes);
        QCOMPARE(frames.currentFrame(&*scene), 1);
    }
};

QTEST_GUILESS_MAIN(tst_SC_CurrentFrameInterface)
#include "tst_SC_CurrentFrameInterface.moc"
