// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>

class tst_TUSceneChangeManager : public QObject
{
    Q_OBJECT

private:
    MO_PegModule _nodeA{QStringLiteral("a")};
    MO_PegModule _nodeB{QStringLiteral("b")};

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void tells_nothing_before_it_is_asked_to()
    {
        TUSceneChangeManager manager;
        const ChangeLog log(manager);
        manager.emitSelectionChanged();
        manager.emitNodeChanged(&_nodeA);
        QVERIFY(log.told().isEmpty());
    }

    void tells_every_kind_in_the_order_of_the_signals()
    {
        TUSceneChangeManager manager;
        ChangeLog log(manager);
        TUScene scene(QStringLiteral("Scene"), nullptr);
        manager.emitSubSelectionChanged();
        manager.emitSelectionChanged();
        manager.emitNodeInstanceNameChanged(&_nodeA);
        manager.emitNodeChanged(&_nodeA);
        manager.emitChildrenOrderingChanged(&_nodeA);
        manager.emitNetworkChanged(&_nodeA);
        manager.emitCurrentFrameChanged();
        manager.emitCurrentSceneChanged(&scene);
        manager.notify();
        QCOMPARE(log.take(), (QStringList{"scene Scene", "frame", "network a", "ordering a",
                                          "nodes a", "names a", "selection", "sub-selection"}));
        manager.notify();
        QVERIFY(log.told().isEmpty());
    }

    void tells_each_kind_once_with_all_its_nodes()
    {
        TUSceneChangeManager manager;
        ChangeLog log(manager);
        manager.emitNodeChanged(&_nodeB);
        manager.emitNodeChanged(&_nodeA);
        manager.emitNodeChanged(&_nodeB);
        manager.emitSelectionChanged();
        manager.emitSelectionChanged();
        manager.notify();
        QCOMPARE(log.take(), (QStringList{"nodes a b", "selection"}));
    }

    void ignores_null_nodes()
    {
        TUSceneChangeManager manager;
        const ChangeLog log(manager);
        manager.emitNodeChanged(nullptr);
        manager.emitNodeInstanceNameChanged(nullptr);
        manager.emitNetworkChanged(nullptr);
        manager.emitChildrenOrderingChanged(nullptr);
        manager.notify();
        QVERIFY(log.told().isEmpty());
    }

    void tells_that_there_is_no_scene_any_more()
    {
        TUSceneChangeManager manager;
        ChangeLog log(manager);
        manager.emitCurrentSceneChanged(nullptr);
        manager.notify();
        QCOMPARE(log.take(), QStringList{"scene none"});
    }

    void tells_a_scene_that_died_meanwhile_as_none()
    {
        TUSceneChangeManager manager;
        ChangeLog log(manager);
        auto scene = std::make_unique<TUScene>(QStringLiteral("Scene"), nullptr);
        manager.emitCurrentSceneChanged(scene.get());
        scene.reset();
        manager.notify();
        QCOMPARE(log.take(), QStringList{"scene none"});
    }

    void passes_nodes_that_died_meanwhile_as_null_references()
    {
        TUSceneChangeManager manager;
        ChangeLog log(manager);
        auto node = std::make_unique<MO_PegModule>(QStringLiteral("c"));
        manager.emitNodeChanged(node.get());
        manager.emitNodeChanged(&_nodeA);
        node.reset();
        manager.notify();
        QCOMPARE(log.take(), QStringList{"nodes ? a"});
    }

    void tells_what_a_listener_notes_before_it_returns()
    {
        TUSceneChangeManager manager;
        ChangeLog log(manager);
        int rounds = 0;
        connect(&manager, &TUSceneChangeManager::selectionChanged, &manager, [&] {
            if (++rounds > 1)
                return;
            manager.emitNodeChanged(&_nodeA);
            manager.emitSelectionChanged();
        });
        manager.emitSelectionChanged();
        manager.emitSubSelectionChanged();
        manager.notify();
        QCOMPARE(log.take(), (QStringList{"selection", "nodes a", "selection", "sub-selection"}));
    }

    void leaves_news_of_a_listener_that_notifies_to_the_call_under_way()
    {
        TUSceneChangeManager manager;
        QStringList heard;
        connect(&manager, &TUSceneChangeManager::selectionChanged, &manager, [&] {
            QVERIFY(manager.isNotifying());
            manager.emitSubSelectionChanged();
            manager.notify();
            heard << QStringLiteral("first listener");
        });
        connect(&manager, &TUSceneChangeManager::selectionChanged, &manager,
                [&] { heard << QStringLiteral("second listener"); });
        connect(&manager, &TUSceneChangeManager::subSelectionChanged, &manager,
                [&] { heard << QStringLiteral("sub-selection"); });
        manager.emitSelectionChanged();
        manager.notify();
        QCOMPARE(heard, (QStringList{"first listener", "second listener", "sub-selection"}));
        QVERIFY(!manager.isNotifying());
    }

    void survives_a_listener_that_deletes_itself_or_another()
    {
        TUSceneChangeManager manager;
        auto* first = new QObject;
        auto* second = new QObject;
        int calls = 0;
        connect(&manager, &TUSceneChangeManager::nodesChanged, first, [&] {
            ++calls;
            delete second;
            delete first;
        });
        connect(&manager, &TUSceneChangeManager::nodesChanged, second, [&] { ++calls; });
        manager.emitNodeChanged(&_nodeA);
        manager.notify();
        manager.emitNodeChanged(&_nodeA);
        manager.notify();
        QCOMPARE(calls, 1);
    }

    void survives_a_listener_that_deletes_the_manager()
    {
        auto* manager = new TUSceneChangeManager;
        const ChangeLog log(*manager);
        connect(manager, &TUSceneChangeManager::currentFrameChanged, this,
                [manager] { delete manager; });
        manager->emitCurrentFrameChanged();
        manager->emitSelectionChanged();
        manager->notify();
        QCOMPARE(log.told(), QStringList{"frame"});
    }
};

QTEST_GUILESS_MAIN(tst_TUSceneChangeManager)
#include "tst_TUSceneChangeManager.moc"
