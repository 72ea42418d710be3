// SPDX-License-Identifier: MIT

#include "workbench/docks/SceneListDock.h"

#include "host/commands/CO_CommandManager.h"
#include "tests/workbench/WindowTest.h"

#include <QLineEdit>
#include <QUndoStack>

/// The list of the scene, worked by mouse and keys.
class tst_scene_list : public WindowTest
{
    Q_OBJECT

private:
    void select(const std::vector<MO_Node*>& nodes)
    {
        const SL_Selection::BatchSelectionModeScope scope(context().selection());
        context().selection()->clear();
        for (MO_Node* node : nodes)
            context().selection()->add(node);
    }

    void click(int row, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        const QRect rect = list().visualItemRect(list().topLevelItem(row));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, held, rect.center());
    }

    QStringList names()
    {
        QStringList names;
        for (const MO_Node* node : root().nodes())
            names << node->instanceName();
        return names;
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void clicks_in_the_list_select_in_the_scene()
    {
        MO_Node* arm = addPeg("arm");
        MO_Node* leg = addPeg("leg");
        click(1);
        QCOMPARE(context().selection()->nodes(), std::vector<MO_Node*>{arm});
        click(2, Qt::ControlModifier);
        QCOMPARE(context().selection()->nodes(), (std::vector<MO_Node*>{arm, leg}));
        click(0);
        click(2, Qt::ShiftModifier);
        QCOMPARE(context().selection()->nodes().size(), std::size_t(3));
        select({leg});
        QCOMPARE(listed(true), QStringList{"leg"});
        select({});
        QCOMPARE(listed(true), QStringList());
    }

    void a_click_that_keeps_an_element_keeps_its_sub_selection()
    {
        addPeg("arm");
        entry("Edit", "Select All")->trigger();
        const std::vector<int> ids = _robot->selInterface()->subSelectedIds();
        QVERIFY(!ids.empty());
        click(1, Qt::ControlModifier);
        QCOMPARE(_robot->selInterface()->subSelectedIds(), ids);
    }

    void nodes_are_renamed_in_place()
    {
        const QString before = names().first();
        click(0);
        const auto type = [&](const QString& name) {
            list().setFocus();
            key(Qt::Key_F2);
            auto* editor = list().findChild<QLineEdit*>();
            QVERIFY(editor);
            editor->selectAll();
            QTest::keyClicks(editor, name);
            QTest::keyClick(editor, Qt::Key_Return);
            QTRY_VERIFY(!list().findChild<QLineEdit*>());
        };
        type(QStringLiteral("  machine "));
        QCOMPARE(names(), QStringList{"machine"});
        QCOMPARE(listed(), QStringList{"machine"});
        QCOMPARE(graph().controller()->uiInfo()->rootUiNode()->name(), QStringLiteral("machine"));
        entry("Edit", "Undo")->trigger();
        QCOMPARE(names(), QStringList{before});
        QCOMPARE(listed(), QStringList{before});
        // A blank name is refused.
        type(QStringLiteral("  "));
        QCOMPARE(listed(), QStringList{before});
        QVERIFY(!entry("Edit", "Undo")->isEnabled());
    }

    void deleted_nodes_come_back_with_their_selection()
    {
        const GV_GraphUiInfo& shown = *graph().controller()->uiInfo();
        addPeg("arm");
        const QString first =
            (*graph().controller()->uiInfo()->rootUiNode()->childrenBegin())->name();
        subSelect(first);
        const std::vector<int> ids = _robot->selInterface()->subSelectedIds();
        QCOMPARE(ids.size(), std::size_t(1));
        const auto selected = shown.selectedNodes().size();
        list().setFocus();
        for (int round = 0; round < 2; ++round) {
            key(Qt::Key_Delete);
            QCOMPARE(names(), QStringList{"arm"});
            QCOMPARE(listed(), QStringList{"arm"});
            QVERIFY(shown.isEmpty());
            entry("Edit", "Undo")->trigger();
            QCOMPARE(listed(), (QStringList{"robot", "arm"}));
            QCOMPARE(listed(true), QStringList{"robot"});
            QCOMPARE(_robot->selInterface()->subSelectedIds(), ids);
            QVERIFY(shown.rootUiNode());
            QCOMPARE(shown.visibleGraphModelNode(), _robot);
            QCOMPARE(shown.selectedNodes().size(), selected);
        }
    }

    void several_nodes_are_deleted_as_one_step()
    {
        addPeg("arm");
        addPeg("leg");
        click(1);
        click(2, Qt::ShiftModifier);
        key(Qt::Key_Delete);
        QCOMPARE(listed(), QStringList{"robot"});
        QCOMPARE(context().commandManager()->history()->count(), 1);
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(listed(), (QStringList{"robot", "arm", "leg"}));
        QCOMPARE(listed(true), (QStringList{"arm", "leg"}));
    }

    void nodes_move_up_and_down()
    {
        addPeg("arm");
        addPeg("leg");
        click(0);
        key(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(listed(), (QStringList{"arm", "robot", "leg"}));
        key(Qt::Key_Down, Qt::ControlModifier);
        key(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(names(), (QStringList{"arm", "leg", "robot"}));
        QCOMPARE(listed(true), QStringList{"robot"});
        QCOMPARE(context().commandManager()->history()->count(), 2);
        key(Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(listed(), (QStringList{"arm", "robot", "leg"}));
        for (int i = 0; i < 3; ++i)
            entry("Edit", "Undo")->trigger();
        QCOMPARE(listed(), (QStringList{"robot", "arm", "leg"}));
        QCOMPARE(names(), listed());
    }
};

QTEST_MAIN(tst_scene_list)
#include "tst_scene_list.moc"
