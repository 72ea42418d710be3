// SPDX-License-Identifier: MIT
#include "ChangeLog.h"
#include "host/scene/MO_DisplayModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"

#include <QRegularExpression>
#include <QTest>

class tst_MO_Node : public QObject
{
    Q_OBJECT

private:
    TUSceneChangeManager _changes;

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void starts_detached_at_the_origin()
    {
        const MO_PegModule peg(QStringLiteral("Peg"));
        QCOMPARE(peg.instanceName(), QStringLiteral("Peg"));
        QCOMPARE(peg.x(), 0.0);
        QCOMPARE(peg.y(), 0.0);
        QVERIFY(!peg.parentGroup());
        QVERIFY(!peg.scene());
        QVERIFY(!peg.sceneCommon());
        QVERIFY(!peg.selInterface());
        QVERIFY(!peg.selected());
    }

    void setters_work_on_a_detached_node()
    {
        MO_DisplayModule display{QString()};
        display.setInstanceName(QStringLiteral("Display"));
        display.setX(1.5);
        display.setY(-2.0);
        QCOMPARE(display.instanceName(), QStringLiteral("Display"));
        QCOMPARE(display.x(), 1.5);
        QCOMPARE(display.y(), -2.0);
    }

    void notes_a_new_name_when_told_to_notify()
    {
        TUScene scene(QStringLiteral("Scene"), &_changes);
        MO_Node* node = scene.rootGroup()->insertNode(std::make_unique<MO_PegModule>("Old"));
        _changes.notify();
        ChangeLog log(_changes);
        node->setInstanceName(QStringLiteral("New"));
        QVERIFY(log.told().isEmpty());
        _changes.notify();
        QCOMPARE(log.take(), QStringList{"names New"});
    }

    void notes_nothing_when_the_name_or_place_is_as_before()
    {
        TUScene scene(QStringLiteral("Scene"), &_changes);
        MO_Node* node = scene.rootGroup()->insertNode(std::make_unique<MO_PegModule>("Peg"));
        _changes.notify();
        ChangeLog log(_changes);
        node->setInstanceName(QStringLiteral("Peg"));
        node->setX(0.0);
        node->setY(0.0);
        _changes.notify();
        QVERIFY(log.told().isEmpty());
    }

    void notes_each_move()
    {
        TUScene scene(QStringLiteral("Scene"), &_changes);
        MO_Node* node = scene.rootGroup()->insertNode(std::make_unique<MO_PegModule>("Peg"));
        _changes.notify();
        ChangeLog log(_changes);
        node->setX(1.0);
        _changes.notify();
        node->setY(1.0);
        _changes.notify();
        QCOMPARE(log.take(), (QStringList{"nodes Peg", "nodes Peg"}));
    }

    void works_in_a_scene_without_change_manager()
    {
        TUScene scene(QStringLiteral("Silent"), nullptr);
        MO_Node* node = scene.rootGroup()->insertNode(std::make_unique<MO_PegModule>("Peg"));
        node->setInstanceName(QStringLiteral("Other"));
        node->setX(1.0);
        scene.rootGroup()->takeNode(node);
    }

    void knows_its_kind()
    {
        QCOMPARE(MO_PegModule(QString()).typeName(), QStringLiteral("PEG"));
        QCOMPARE(MO_DisplayModule(QString()).typeName(), QStringLiteral("DISPLAY"));
        QCOMPARE(MO_GroupModule(QString()).typeName(), QStringLiteral("GROUP"));
    }
};

QTEST_GUILESS_MAIN(tst_MO_Node)
#include "tst_MO_Node.moc"
