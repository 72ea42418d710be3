// SPDX-License-Identifier: MIT
#include "workbench/views/GraphViewKeys.h"

#include "host/scene/SC_CurrentFrameInterface.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/docks/ViewDock.h"
#include "workbench/timeline/FrameBox.h"
#include "workbench/timeline/TimelineDock.h"
#include "workbench/timeline/TimelineView.h"

#include <QLineEdit>
#include <QTreeView>

/// The arrow keys walk through the tree of the graph view that has the focus.
class tst_graph_view_keys : public WindowTest
{
    Q_OBJECT

private:
    QStringList selected() { return subSelected(*_robot); }
    int frame()
    {
        return context().currentFrameInterface()->currentFrame(_session->currentScene());
    }
    QRectF shownArea() { return graph().mapToScene(graph().viewport()->rect()).boundingRect(); }
    QRectF selectedArea()
    {
        const Math::Rect2d area = graph().controller()->uiInfo()->selectionRect();
        return {area.left, area.top, area.width(), area.height()};
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void the_first_press_selects_the_first_subnode()
    {
        for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
            graph().setFocus();
            subSelect(QStringLiteral("Torso"));
            {
                const SL_Selection::BatchSelectionModeScope scope(context().selection());
                _robot->selInterface()->clearSubSelection();
            }
            QCOMPARE(selected(), QStringList());
            key(arrow);
            QCOMPARE(selected(), QStringList{"Hips"});
        }
    }

    void arrows_walk_as_the_menu_does_data()
    {
        QTest::addColumn<Qt::Key>("arrow");
        QTest::addColumn<QString>("action");
        QTest::newRow("parent") << Qt::Key_Left << "Select Parent";
        QTest::newRow("child") << Qt::Key_Right << "Select First Child";
        QTest::newRow("next") << Qt::Key_Down << "Select Next Sibling";
        QTest::newRow("previous") << Qt::Key_Up << "Select Previous Sibling";
    }
    void arrows_walk_as_the_menu_does()
    {
        QFETCH(const Qt::Key, arrow);
        QFETCH(const QString, action);
        graph().setFocus();
        int moves = 0;
        for (const char* start :
             {"Torso", "Head", "LeftShoulder", "BackpackPowerUnit", "Hips", "LeftToes"}) {
            subSelect(QString::fromLatin1(start));
            context().actionManager()->validateActions();
            entry("Subnodes", action)->trigger();
            const QStringList expected = selected();
            subSelect(QString::fromLatin1(start));
            key(arrow);
            QCOMPARE(selected(), expected);
            moves += expected == QStringList{start} ? 0 : 1;
        }
        QVERIFY(moves >= 2);
    }

    void at_the_end_of_the_tree_nothing_moves()
    {
        graph().setFocus();
        subSelect(QStringLiteral("Hips"));
        key(Qt::Key_Left);
        QCOMPARE(selected(), QStringList{"Hips"});
        subSelect(QStringLiteral("LeftToes"));
        key(Qt::Key_Right);
        QCOMPARE(selected(), QStringList{"LeftToes"});
    }

    void what_is_reached_is_brought_into_view()
    {
        graph().setFocus();
        subSelect(QStringLiteral("Hips"));
        QTest::mouseMove(graph().viewport(), QPoint(5, 5));
        for (int i = 0; i < 6; ++i)
            key(Qt::Key_Plus);
        for (int i = 0; i < 8; ++i) {
            key(Qt::Key_Right);
            QVERIFY2(shownArea().intersects(selectedArea()), qPrintable(selected().join(u' ')));
        }
        QVERIFY(selected() != QStringList{"Hips"});
    }

    void another_graph_view_has_the_same_keys()
    {
        auto& other = *dynamic_cast<GV_GraphXViewQt*>(_window->openGraphView()->view()->widget());
        subSelect(QStringLiteral("Torso"));
        QVERIFY(other.hasFocus());
        key(Qt::Key_Left);
        QCOMPARE(selected(), QStringList{"Hips"});
        graph().setFocus();
        key(Qt::Key_Right);
        QCOMPARE(selected(), QStringList{"Torso"});
    }

    void an_empty_view_takes_arrows_for_nothing()
    {
        entry("Edit", "Deselect All")->trigger();
        list().clearSelection();
        context().changeManager()->notify();
        graph().setFocus();
        for (const Qt::Key arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
            key(arrow);
        QCOMPARE(selected(), QStringList());
    }

    void arrows_of_the_subnode_tree_are_its_own()
    {
        QTreeView& tree = *_window->treeView().treeView();
        tree.setFocus();
        const QModelIndex torso = _window->treeView().proxyModel()->mapFromSource(
            _window->treeView().model()->findIndex(AT_ModelNodeKey(QStringLiteral("Torso"))));
        tree.setCurrentIndex(torso);
        QCOMPARE(selected(), QStringList{"Torso"});
        QVERIFY(tree.isExpanded(torso));
        key(Qt::Key_Left);
        QVERIFY(!tree.isExpanded(torso));
        QCOMPARE(selected(), QStringList{"Torso"});
        key(Qt::Key_Right);
        QVERIFY(tree.isExpanded(torso));
        key(Qt::Key_Down);
        QCOMPARE(selected(), QStringList{"ChestPanel"});
        key(Qt::Key_Up);
        QCOMPARE(selected(), QStringList{"Torso"});
    }

    void arrows_in_the_filter_move_its_cursor()
    {
        subSelect(QStringLiteral("Torso"));
        QLineEdit& field = *_window->treeView().filterField();
        field.setFocus();
        QTest::keyClicks(&field, QStringLiteral("To"));
        key(Qt::Key_Left);
        QCOMPARE(field.cursorPosition(), 1);
        key(Qt::Key_Right);
        QCOMPARE(field.cursorPosition(), 2);
        QCOMPARE(selected(), QStringList{"Torso"});
    }

    void arrows_in_the_time_line_and_the_frame_box_go_through_the_frames()
    {
        subSelect(QStringLiteral("Torso"));
        auto* box = _window->findChild<FrameBox*>();
        box->setFocus();
        key(Qt::Key_Up);
        QCOMPARE(frame(), 2);
        _window->timeline().view().setFocus();
        key(Qt::Key_Right);
        QCOMPARE(frame(), 3);
        key(Qt::Key_Left);
        QCOMPARE(frame(), 2);
        QCOMPARE(selected(), QStringList{"Torso"});
    }

    void arrows_in_the_scene_list_are_its_own()
    {
        addPeg("peg");
        list().setFocus();
        list().setCurrentItem(list().topLevelItem(0));
        key(Qt::Key_Down);
        QCOMPARE(list().currentItem(), list().topLevelItem(1));
    }
};

QTEST_MAIN(tst_graph_view_keys)
#include "tst_graph_view_keys.moc"
