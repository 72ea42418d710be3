// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "SampleModel.h"
#include "host/commands/CO_CommandManager.h"
#include "host/layout/TUCanvasViewLayoutView.h"
#include "host/models/AT_ModelCmds.h"
#include "host/models/AT_ModelData.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>

namespace {

class Canvas : public TUCanvasViewLayoutView
{
public:
    explicit Canvas(AC_Manager* manager)
        : TUCanvasViewLayoutView(manager, QString(), nullptr, QStringLiteral("canvas"), {})
    {
    }
    TULayoutView* clone(QWidget*) const override { return nullptr; }
    bool hasMenu() override { return false; }
};

/// An element with a model, selected with a subnode, and a step in the history.
MO_ElementModule* fill(HostSession& session)
{
    auto* element = static_cast<MO_ElementModule*>(
        session.currentScene()->rootGroup()->insertNode(std::make_unique<MO_ElementModule>("e")));
    element->exposeModel(1, 10, modelOf({"a", "b"}));
    session.context().selection()->add(element);
    element->selInterface()->subSelect(1, true);
    auto* command = new AT_ModelCmds::insertNodeDataCmd(element, nullptr);
    command->addData(AT_ModelNodeKey("a"), AT_ModelNodeData());
    session.context().commandManager()->execute(command, QStringLiteral("Step"));
    session.context().changeManager()->notify();
    return element;
}

} // namespace

class tst_HostSession : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void starts_without_a_scene()
    {
        HostSession session;
        QCOMPARE(HostSession::current(), &session);
        QVERIFY(!session.currentScene());
        const ChangeLog log(*session.context().changeManager());
        session.closeScene();
        QVERIFY(log.told().isEmpty());
    }

    void opens_a_scene_and_tells_it()
    {
        HostSession session;
        ChangeLog log(*session.context().changeManager());
        const TUScene& scene = session.openScene(QStringLiteral("First"));
        QCOMPARE(session.currentScene(), &scene);
        QCOMPARE(scene.name(), QStringLiteral("First"));
        QCOMPARE(scene.changeManager(), session.context().changeManager());
        QCOMPARE(log.take(), QStringList{"scene First"});
    }

    void replaces_a_scene_after_listeners_know_the_new_one()
    {
        HostSession session;
        const UT_SharedWeakPtr<TUScene> old(&session.openScene(QStringLiteral("Old")));
        bool oldWasThere = false;
        QObject listener;
        connect(session.context().changeManager(), &TUSceneChangeManager::currentSceneChanged,
                &listener, [&](TUScene* scene) {
                    QCOMPARE(scene, session.currentScene());
                    oldWasThere = !old.isNull();
                });
        session.openScene(QStringLiteral("New"));
        QVERIFY(oldWasThere);
        QVERIFY(old.isNull());
    }

    void closes_a_scene_and_tells_it()
    {
        HostSession session;
        const UT_SharedWeakPtr<TUScene> scene(&session.openScene(QStringLiteral("Scene")));
        ChangeLog log(*session.context().changeManager());
        session.closeScene();
        QVERIFY(!session.currentScene());
        QVERIFY(scene.isNull());
        QCOMPARE(log.take(), QStringList{"scene none"});
    }

    void empties_selection_and_history_when_a_scene_is_replaced()
    {
        HostSession session;
        session.openScene(QStringLiteral("Old"));
        const UT_SharedWeakPtr<MO_Node> element(fill(session));
        QCOMPARE(session.context().commandManager()->history()->count(), 1);
        ChangeLog log(*session.context().changeManager());
        session.openScene(QStringLiteral("New"));
        QVERIFY(session.context().selection()->empty());
        QCOMPARE(session.context().commandManager()->history()->count(), 0);
        QVERIFY(element.isNull());
        QCOMPARE(log.take(), (QStringList{"scene New", "selection", "sub-selection"}));
    }

    void empties_selection_and_history_when_a_scene_is_closed()
    {
        HostSession session;
        session.openScene(QStringLiteral("Old"));
        fill(session);
        session.closeScene();
        QVERIFY(session.context().selection()->empty());
        QVERIFY(!session.context().commandManager()->history()->canUndo());
    }

    void starts_every_scene_at_the_first_frame()
    {
        HostSession session;
        SC_CurrentFrameInterface& frames = *session.context().currentFrameInterface();
        for (int i = 0; i < 4; ++i) {
            const TUScene& scene = session.openScene(QStringLiteral("Scene"));
            QCOMPARE(frames.currentFrame(&scene), 1);
            frames.setCurrentFrame(&scene, 5);
        }
    }

    void keeps_a_scene_while_listeners_may_still_hold_it()
    {
        HostSession session;
        TUSceneChangeManager& changes = *session.context().changeManager();
        session.openScene(QStringLiteral("First"));
        QObject listener;
        QStringList heard;
        UT_SharedWeakPtr<TUScene> second;
        connect(&changes, &TUSceneChangeManager::currentSceneChanged, &listener,
                [&](TUScene* told) {
                    if (told->name() != QLatin1String("Second"))
                        return;
                    second = told;
                    session.openScene(QStringLiteral("Third"));
                });
        connect(&changes, &TUSceneChangeManager::currentSceneChanged, &listener,
                [&](TUScene* told) { heard << told->name(); });
        session.openScene(QStringLiteral("Second"));
        QCOMPARE(heard, (QStringList{"Second", "Third"}));
        QTRY_VERIFY(second.isNull());
    }

    void lets_a_listener_to_any_change_open_a_scene()
    {
        HostSession session;
        TUSceneChangeManager& changes = *session.context().changeManager();
        session.openScene(QStringLiteral("Old"));
        const UT_SharedWeakPtr<MO_Node> element(fill(session));
        QObject listener;
        connect(&changes, &TUSceneChangeManager::nodesChanged, &listener,
                [&] { session.openScene(QStringLiteral("New")); });
        session.context().commandManager()->history()->undo();
        QCOMPARE(session.currentScene()->name(), QStringLiteral("New"));
        QTRY_VERIFY(element.isNull());
    }

    void tells_that_the_scene_goes_when_it_dies()
    {
        QStringList told;
        {
            HostSession session;
            session.openScene(QStringLiteral("Scene"));
            fill(session);
            connect(session.context().changeManager(), &TUSceneChangeManager::currentSceneChanged,
                    this, [&](TUScene* scene) { told << (scene ? scene->name() : "none"); });
        }
        QCOMPARE(told, QStringList{"none"});
        QVERIFY(!HostSession::current());
    }

    void may_die_before_its_views()
    {
        auto session = std::make_unique<HostSession>();
        const Canvas canvas(session->context().actionManager());
        session.reset();
        QVERIFY(!canvas.actionManager());
    }
};

QTEST_MAIN(tst_HostSession)
#include "tst_HostSession.moc"
