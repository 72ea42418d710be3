// SPDX-License-Identifier: MIT
#include "workbench/views/ViewState.h"

#include "ModelFiles.h"
#include "graphview/GV_TreeWalk.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/docks/ViewDock.h"
#include "workbench/window/MessageBar.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>

/// A model that is read again looks as the user left it, but for what its file changed.
class tst_reload_keeps_views : public WindowTest
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> _folder;
    QString _file;

    QTreeView& tree() { return *_window->treeView().treeView(); }
    bool isThere(const QString& name)
    {
        return _window->treeView().model()->findIndex(AT_ModelNodeKey(name)).isValid();
    }
    QModelIndex row(const QString& name)
    {
        return _window->treeView().proxyModel()->mapFromSource(
            _window->treeView().model()->findIndex(AT_ModelNodeKey(name)));
    }
    bool isExpanded(const QString& name) { return tree().isExpanded(row(name)); }
    static GV_UiNode* nodeOf(const GV_GraphXViewQt& view, const QString& name)
    {
        GV_TreeWalk walk(view.controller()->uiInfo()->rootUiNode());
        while (GV_UiNode* node = walk.next()) {
            if (node->isSgNode() && node->name() == name)
                return node;
        }
        return nullptr;
    }
    static bool isCollapsed(const GV_GraphXViewQt& view, const QString& name)
    {
        const GV_UiNode* node = nodeOf(view, name);
        return node && node->isCollapsed();
    }
    static void fold(const GV_GraphXViewQt& view, const QString& name)
    {
        GV_UiNode* node = nodeOf(view, name);
        QVERIFY(node);
        node->setCollapsed(true);
        view.controller()->uiInfo()->calculateGeometricData();
    }
    void changeFile(ModelFiles::Way way = ModelFiles::Way::Write)
    {
        QVERIFY(ModelFiles::writeRobot(_file, QStringLiteral("Badge"), QStringLiteral("Jaw"), way));
    }
    void reload()
    {
        key(Qt::Key_F5);
        QTRY_VERIFY_WITH_TIMEOUT(isThere(QStringLiteral("Badge")), 30000);
        QVERIFY(!isThere(QStringLiteral("Jaw")));
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init()
    {
        _folder = std::make_unique<QTemporaryDir>();
        _file = _folder->filePath(QStringLiteral("robot.gltf"));
        QVERIFY(ModelFiles::writeRobot(_file));
        openEmptyWindow();
        open({_file});
        _robot = element(0);
        QVERIFY(isThere(QStringLiteral("Jaw")));
    }
    void cleanup() { closeWindow(); }

    void folded_branches_of_the_graph_stay_folded()
    {
        fold(graph(), QStringLiteral("LeftShoulder"));
        fold(graph(), QStringLiteral("Head"));
        changeFile();
        reload();
        QVERIFY(isCollapsed(graph(), QStringLiteral("LeftShoulder")));
        QVERIFY(isCollapsed(graph(), QStringLiteral("Head")));
        QVERIFY(!isCollapsed(graph(), QStringLiteral("Torso")));
        QVERIFY(!isCollapsed(graph(), QStringLiteral("RightShoulder")));
        QVERIFY(nodeOf(graph(), QStringLiteral("Badge")));
        QVERIFY(!nodeOf(graph(), QStringLiteral("Jaw")));
    }

    void folded_branches_of_every_graph_view_stay_folded()
    {
        auto& other = *dynamic_cast<GV_GraphXViewQt*>(_window->openGraphView()->view()->widget());
        fold(other, QStringLiteral("RightShoulder"));
        changeFile();
        reload();
        QVERIFY(isCollapsed(other, QStringLiteral("RightShoulder")));
        QVERIFY(!isCollapsed(graph(), QStringLiteral("RightShoulder")));
    }

    void rows_of_the_tree_stay_expanded_and_scrolled()
    {
        _window->resize(1100, 600);
        tree().collapse(row(QStringLiteral("LeftShoulder")));
        tree().collapse(row(QStringLiteral("Head")));
        tree().setCurrentIndex(row(QStringLiteral("RightHand")));
        QCOMPARE(subSelected(*_robot), QStringList{"RightHand"});
        QCoreApplication::processEvents();
        tree().verticalScrollBar()->setValue(tree().verticalScrollBar()->maximum() / 2);
        const int scrolled = tree().verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        changeFile();
        reload();
        QVERIFY(!isExpanded(QStringLiteral("LeftShoulder")));
        QVERIFY(!isExpanded(QStringLiteral("Head")));
        QVERIFY(isExpanded(QStringLiteral("Torso")));
        QVERIFY(isExpanded(QStringLiteral("RightShoulder")));
        QCOMPARE(tree().verticalScrollBar()->value(), scrolled);
        QCOMPARE(tree().currentIndex(), row(QStringLiteral("RightHand")));
    }

    void a_branch_that_is_new_is_unfolded_in_both_views()
    {
        tree().collapse(row(QStringLiteral("LeftShoulder")));
        fold(graph(), QStringLiteral("LeftShoulder"));
        // The file has no right arm at first, and then gets it back.
        QVERIFY(ModelFiles::writeRobot(_file, QStringLiteral("Badge"),
                                       QStringLiteral("RightShoulder")));
        key(Qt::Key_F5);
        QTRY_VERIFY_WITH_TIMEOUT(isThere(QStringLiteral("Badge")), 30000);
        QVERIFY(!isThere(QStringLiteral("RightShoulder")));
        QVERIFY(ModelFiles::writeRobot(_file));
        key(Qt::Key_F5);
        QTRY_VERIFY_WITH_TIMEOUT(isThere(QStringLiteral("RightShoulder")), 30000);
        QVERIFY(isExpanded(QStringLiteral("RightShoulder")));
        QVERIFY(!isCollapsed(graph(), QStringLiteral("RightShoulder")));
        QVERIFY(!isExpanded(QStringLiteral("LeftShoulder")));
        QVERIFY(isCollapsed(graph(), QStringLiteral("LeftShoulder")));
    }

    void the_filter_goes_on_filtering()
    {
        QLineEdit& field = *_window->treeView().filterField();
        field.setFocus();
        QTest::keyClicks(&field, QStringLiteral("Shoulder"));
        tree().collapse(row(QStringLiteral("Torso")));
        changeFile();
        key(Qt::Key_F5);
        QTRY_VERIFY_WITH_TIMEOUT(isThere(QStringLiteral("Badge")), 30000);
        QCOMPARE(field.text(), QStringLiteral("Shoulder"));
        QVERIFY(row(QStringLiteral("LeftShoulder")).isValid());
        QVERIFY(!row(QStringLiteral("Badge")).isValid());
        QVERIFY(!isExpanded(QStringLiteral("Torso")));
        QVERIFY(field.hasFocus());
    }

    void selection_and_visibility_stay()
    {
        subSelect(QStringLiteral("LeftHand"));
        graph().setFocus();
        key(Qt::Key_H);
        QVERIFY(isHidden(*_robot, QStringLiteral("LeftHand")));
        const QString undo = entry("Edit", "Undo")->text();
        changeFile();
        reload();
        QVERIFY(isHidden(*_robot, QStringLiteral("LeftHand")));
        QCOMPARE(subSelected(*_robot), QStringList{"LeftHand"});
        QCOMPARE(entry("Edit", "Undo")->text(), undo);
        key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!isHidden(*_robot, QStringLiteral("LeftHand")));
    }

    void zoom_and_pan_stay()
    {
        graph().setFocus();
        QTest::mouseMove(graph().viewport(), QPoint(100, 100));
        key(Qt::Key_Plus);
        key(Qt::Key_Plus);
        subSelect(QStringLiteral("LeftHand"));
        key(Qt::Key_F);
        const QTransform before = graph().viewportTransform();
        changeFile();
        reload();
        QCOMPARE(graph().viewportTransform(), before);
    }

    void two_files_are_read_again_without_losing_either_view()
    {
        const QString other = _folder->filePath(QStringLiteral("zebra.gltf"));
        QVERIFY(ModelFiles::writeRobot(other));
        open({other});
        QVERIFY(_robot->selected());
        fold(graph(), QStringLiteral("LeftShoulder"));
        tree().collapse(row(QStringLiteral("Head")));
        changeFile();
        reload();
        QTRY_VERIFY_WITH_TIMEOUT(!_window->loader().isBusy(), 30000);
        QVERIFY(isCollapsed(graph(), QStringLiteral("LeftShoulder")));
        QVERIFY(!isExpanded(QStringLiteral("Head")));
    }

    void a_file_that_is_broken_leaves_everything_and_is_told()
    {
        fold(graph(), QStringLiteral("LeftShoulder"));
        QVERIFY(ModelFiles::writeBroken(_file));
        key(Qt::Key_F5);
        QTRY_COMPARE_WITH_TIMEOUT(_window->messages().messages().size(), 1, 30000);
        QVERIFY(isThere(QStringLiteral("Jaw")));
        QVERIFY(isCollapsed(graph(), QStringLiteral("LeftShoulder")));
    }

    void files_that_change_are_read_by_themselves_where_wanted()
    {
        emit menu("File")->aboutToShow();
        QAction* watch = entry("File", "Reload When Files Change");
        QVERIFY(!watch->isChecked());
        watch->trigger();
        subSelect(QStringLiteral("LeftHand"));
        fold(graph(), QStringLiteral("LeftShoulder"));
        tree().collapse(row(QStringLiteral("Head")));
        changeFile(ModelFiles::Way::Rename);
        QTRY_VERIFY_WITH_TIMEOUT(isThere(QStringLiteral("Badge")), 30000);
        QVERIFY(!isThere(QStringLiteral("Jaw")));
        QVERIFY(isCollapsed(graph(), QStringLiteral("LeftShoulder")));
        QVERIFY(!isExpanded(QStringLiteral("Head")));
        QCOMPARE(subSelected(*_robot), QStringList{"LeftHand"});
        QVERIFY(ModelFiles::writeRobot(_file, {}, {}, ModelFiles::Way::Rename));
        QTRY_VERIFY_WITH_TIMEOUT(isThere(QStringLiteral("Jaw")), 30000);
        QVERIFY(isCollapsed(graph(), QStringLiteral("LeftShoulder")));
    }

    void a_window_that_watches_says_so_in_its_menu()
    {
        closeWindow();
        WindowOptions options;
        options.watches = true;
        openEmptyWindow(options);
        emit menu("File")->aboutToShow();
        QVERIFY(entry("File", "Reload When Files Change")->isChecked());
        open({_file});
        // The watch begins with the next turn of the event loop.
        QCoreApplication::processEvents();
        changeFile(ModelFiles::Way::Rename);
        QTRY_VERIFY_WITH_TIMEOUT(isThere(QStringLiteral("Badge")), 30000);
    }
};

QTEST_MAIN(tst_reload_keeps_views)
#include "tst_reload_keeps_views.moc"
