// SPDX-License-Identifier: MIT

#include "workbench/window/WorkbenchWindow.h"

#include "host/actions/AC_Manager.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "responder/GT_Graph3DResponder.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SGV_GraphModel.h"
#include "tests/workbench/WindowTest.h"
#include "workbench/docks/LogDock.h"
#include "workbench/docks/ViewDock.h"
#include "workbench/isolation/IsolationResponder.h"
#include "workbench/timeline/FrameBox.h"
#include "workbench/timeline/TimelineDock.h"
#include "workbench/timeline/TransportBar.h"
#include "workbench/window/MessageBar.h"

#include <QDomDocument>
#include <QFile>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QToolBar>
#include <QToolButton>
#include <utility>

/// The window as a whole: its views, menus and tool bars.
class tst_workbench_window : public WindowTest
{
    Q_OBJECT

private:
    static QStringList textsOf(const QList<QAction*>& actions)
    {
        QStringList texts;
        for (const QAction* action : actions)
            texts << (action->isSeparator() ? QStringLiteral("-") : action->text().remove(u'&'));
        return texts;
    }

    static void pressAndDrag(GV_GraphXViewQt& view, const QPoint& from, const QPoint& to)
    {
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, from);
        QMouseEvent event(QEvent::MouseMove, to, view.viewport()->mapToGlobal(QPointF(to)),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &event);
    }

    bool isHidden(const QString& name) { return WindowTest::isHidden(*_robot, name); }

    static GV_GraphXViewQt* viewOf(const ViewDock* dock)
    {
        return dynamic_cast<GV_GraphXViewQt*>(dock->view()->widget());
    }

    static double zoomOf(const GV_GraphXViewQt& view) { return view.transform().m11(); }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { openWindow(); }
    void cleanup() { closeWindow(); }

    void docks_hold_the_list_and_the_views()
    {
        QVERIFY(_window->sceneList().isVisible());
        QVERIFY(graph().isVisible());
        QVERIFY(_window->treeView().isVisible());
        QCOMPARE(_window->findChildren<ViewDock*>().size(), 2);
        QCOMPARE(_window->treeView().model()->index(0, 0).data().toString(),
                 QStringLiteral("Hips"));
        QCOMPARE(_window->dockWidgetArea(&_window->sceneList()), Qt::LeftDockWidgetArea);
        QVERIFY(graph().width() > list().width());
        QCOMPARE(listed(), QStringList{"robot"});
        QCOMPARE(listed(true), QStringList{"robot"});
        QVERIFY(graph().controller()->uiInfo()->rootUiNode());
    }

    void menus_are_complete()
    {
        QCOMPARE(textsOf(_window->menuBar()->actions()),
                 (QStringList{"File", "Edit", "View", "Subnodes", "Playback", "Window", "Help"}));
        QCOMPARE(textsOf(menu("File")->actions()),
                 (QStringList{"New Scene", "Open...", "Open Recent", "Reload Models",
                              "Reload When Files Change", "-", "Save", "Save As...", "-", "Quit"}));
        QCOMPARE(textsOf(menu("Edit")->actions()).mid(2),
                 (QStringList{"-", "Select All", "Deselect All", "Filter Subnodes", "-",
                              "Preferences..."}));
        QCOMPARE(
            textsOf(menu("Subnodes")->actions()),
            (QStringList{"Show", "Hide", "Hide All Others", "Isolate", "-", "Enable", "Disable",
                         "Show Shape", "Hide Shape", "-", "Select Parent", "Select First Child",
                         "Select Next Sibling", "Select Previous Sibling", "-",
                         "Make Properties Available", "Add Kinematic Output", "Dump Scene Graph"}));
        QCOMPARE(textsOf(menu("Playback")->actions()),
                 textsOf(_window->timeline().transport().transportActions()));
        QCOMPARE(textsOf(menu("Window")->actions()),
                 (QStringList{"New Graph View", "-", "Scene", "Subnode Tree", "Graph View",
                              "Timeline", "History", "Log", "-", "Reset Layout"}));
        QCOMPARE(textsOf(menu("Help")->actions()),
                 (QStringList{"Find Action...", "-", "About Subnode Workbench", "About Qt"}));
        context().actionManager()->validateActions();
        QCOMPARE(textsOf(menu("View")->actions()),
                 (QStringList{"Zoom In", "Zoom Out", "Actual Size", "Go to Top Left", "Reset View",
                              "Frame Selection", "-", "Show Every Node", "Collapse All",
                              "Expand All", "-", "Hide Navigator", "Navigator Corner"}));
        QCOMPARE(textsOf(entry("View", "Navigator Corner")->menu()->actions()),
                 (QStringList{"Top Left", "Top Right", "Bottom Left", "Bottom Right"}));
    }

    void tool_bars_are_complete()
    {
        const QList<QToolBar*> bars = _window->findChildren<QToolBar*>(Qt::FindDirectChildrenOnly);
        QCOMPARE(bars.size(), 2);
        QCOMPARE(bars[0]->actions().size(), 15);
        for (const QAction* action : bars[0]->actions())
            QVERIFY2(action->isSeparator() || !action->icon().isNull(), qPrintable(action->text()));
        QCOMPARE(bars[1], &_window->messages());
        QVERIFY(!bars[1]->isVisible());
        QCOMPARE(_window->findChildren<FrameBox*>().size(), 1);
        QVERIFY(_window->timeline().transport().isAncestorOf(_window->findChild<FrameBox*>()));
        const auto* tree = _window->findChild<QToolBar*>(QStringLiteral("graph3dtoolbar"));
        QVERIFY(tree && tree->isVisible());
        // Four actions, the space, and the button of the view's menu.
        QCOMPARE(tree->actions().size(), 6);
        const auto* button = qobject_cast<QToolButton*>(tree->widgetForAction(tree->actions()[5]));
        QVERIFY(button && button->menu());
        QCOMPARE(button->menu()->objectName(), QStringLiteral("3D_GRAPH_VIEW_MENU"));
    }

    void every_action_has_a_slot_in_its_responders()
    {
        QFile file(QStringLiteral(":/workbench/actions.xml"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDomDocument document;
        QVERIFY(document.setContent(&file));
        const QDomNodeList actions = document.elementsByTagName(QStringLiteral("action"));
        QVERIFY(actions.size() > 15);
        QCOMPARE(context().actionManager()->actions().size(), std::size_t(actions.size()));
        const QMetaObject* graphView = &GV_GraphXViewQt::staticMetaObject;
        const QMetaObject* treeView = &SGV_Graph3DView::staticMetaObject;
        const QHash<QString, QList<const QMetaObject*>> responders{
            {graph().responderIdentity(), {graphView}},
            {_window->treeView().responderIdentity(), {treeView}},
            {QStringLiteral("graph3dresponder"), {&GT_Graph3DResponder::staticMetaObject}},
            {QStringLiteral("isolation"), {&IsolationResponder::staticMetaObject}},
            {QStringLiteral("*"), {graphView, treeView}}};
        for (int i = 0; i < actions.size(); ++i) {
            const QDomElement action = actions.at(i).toElement();
            QVERIFY(responders.contains(action.attribute("responder")));
            const QByteArray slot = action.attribute("slot").toLatin1();
            const bool takesNumber = action.hasAttribute("argument");
            for (const QMetaObject* responder : responders[action.attribute("responder")])
                QVERIFY2(responder->indexOfSlot(slot + (takesNumber ? "(int)" : "()")) >= 0, slot);
            QVERIFY(context().actionManager()->action(action.attribute("id")));
        }
    }

    void hiding_by_its_key_is_undone_and_redone_from_the_menu()
    {
        const QString name = graph().controller()->uiInfo()->rootUiNode()->name();
        QCOMPARE(name, QStringLiteral("robot"));
        const GV_UiNode* hips = *graph().controller()->uiInfo()->rootUiNode()->childrenBegin();
        const QString first = hips->name();
        subSelect(first);
        graph().setFocus();
        QVERIFY(!entry("Edit", "Undo")->isEnabled());
        key(Qt::Key_H);
        QVERIFY(isHidden(first));
        QVERIFY(entry("Edit", "Undo")->isEnabled());
        entry("Edit", "Undo")->trigger();
        QVERIFY(!isHidden(first));
        QVERIFY(!entry("Edit", "Undo")->isEnabled());
        entry("Edit", "Redo")->trigger();
        QVERIFY(isHidden(first));
        key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!isHidden(first));
        key(Qt::Key_Y, Qt::ControlModifier);
        QVERIFY(isHidden(first));
    }

    void subnodes_are_walked_and_switched_by_keys()
    {
        subSelect(QStringLiteral("Torso"));
        graph().setFocus();
        const auto subSelected = [this] { return WindowTest::subSelected(*_robot).value(0); };
        key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(subSelected(), QStringLiteral("Hips"));
        QVERIFY(!entry("Subnodes", "Select Parent")->isEnabled());
        // With Shift the child is added, and what was there first stays the current one.
        key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        QCOMPARE(_robot->selInterface()->subSelectedIds().size(), std::size_t(2));
        QCOMPARE(subSelected(), QStringLiteral("Hips"));
        key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(subSelected(), QStringLiteral("Torso"));
        key(Qt::Key_D);
        QVERIFY(isHidden(QStringLiteral("Torso")));
        QVERIFY(!entry("Subnodes", "Disable")->isEnabled());
        QCOMPARE(entry("Edit", "Undo Disable Subnode")->isEnabled(), true);
        key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!isHidden(QStringLiteral("Torso")));
        key(Qt::Key_O);
        QVERIFY(listed().contains(QStringLiteral("Torso-Output")));
        QVERIFY(_window->treeView()
                    .model()
                    ->findIndex(AT_ModelNodeKey(QStringLiteral("Torso")))
                    .data()
                    .toString()
                    .endsWith(u'*'));
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(listed(), QStringList{"robot"});
    }

    void a_dump_comes_up_in_the_log()
    {
        QVERIFY(!_window->log().isVisible());
        entry("Subnodes", "Dump Scene Graph")->trigger();
        QVERIFY(_window->log().isVisible());
        QVERIFY(
            _window->log().text()->toPlainText().contains(QStringLiteral("Hips (KeyTransform) *")));
    }

    void no_key_is_taken_twice()
    {
        QStringList taken;
        for (const QAction* action : _window->findChildren<QAction*>()) {
            if (action->shortcutContext() != Qt::WindowShortcut)
                continue;
            for (const QKeySequence& shortcut : action->shortcuts())
                taken << shortcut.toString();
        }
        for (const QAction* action : context().actionManager()->actions()) {
            for (const QKeySequence& shortcut : action->shortcuts())
                taken << shortcut.toString();
        }
        QVERIFY(taken.size() > 20);
        QStringList unique = taken;
        unique.removeDuplicates();
        QCOMPARE(unique, taken);
    }

    void actions_go_to_the_view_with_the_focus()
    {
        graph().setFocus();
        entry("Window", "New Graph View")->trigger();
        const QList<ViewDock*> docks = _window->findChildren<ViewDock*>();
        QCOMPARE(docks.size(), 3);
        GV_GraphXViewQt& other = *viewOf(docks.last());
        QVERIFY(&other != &graph());
        QVERIFY(other.isVisible());
        QVERIFY(other.hasFocus());
        const double zoom = zoomOf(graph());
        entry("View", "Zoom In")->trigger();
        QVERIFY(zoomOf(other) > zoom);
        QCOMPARE(zoomOf(graph()), zoom);
        graph().setFocus();
        const double otherZoom = zoomOf(other);
        key(Qt::Key_Minus);
        QVERIFY(zoomOf(graph()) < zoom);
        QCOMPARE(zoomOf(other), otherZoom);
        // The list is no graph view; the one before it stays the active one.
        const double reduced = zoomOf(graph());
        list().setFocus();
        entry("View", "Zoom In")->trigger();
        QVERIFY(zoomOf(graph()) > reduced);
        QCOMPARE(zoomOf(other), otherZoom);
    }

    void both_views_show_the_same_selection()
    {
        GV_GraphXViewQt& other = *viewOf(_window->openGraphView());
        entry("Edit", "Select All")->trigger();
        const auto count = [](const GV_GraphXViewQt& view) {
            return std::as_const(*view.controller()->uiInfo()).selectedNodes().size();
        };
        QVERIFY(count(other) > 20);
        QCOMPARE(count(graph()), count(other));
    }

    void a_view_may_be_closed_in_the_middle_of_a_marquee()
    {
        QPointer<ViewDock> dock = _window->openGraphView();
        GV_GraphXViewQt* view = viewOf(dock);
        // The moves leave the canvas, so that it pans by itself.
        const QPoint start(view->viewport()->width() - 5, 5);
        pressAndDrag(*view, start, QPoint(view->viewport()->width() + 40, 60));
        QCOMPARE(view->mouseAction(), GV_GraphXViewQt::eMouseMarquee);
        const QPoint at = view->mapTo(_window.get(), start);
        dock->close();
        QTest::mouseRelease(_window->windowHandle(), Qt::LeftButton, {}, at);
        QTRY_VERIFY(dock.isNull());
        const double zoom = zoomOf(graph());
        entry("View", "Zoom In")->trigger();
        QVERIFY(zoomOf(graph()) > zoom);
        QTest::mouseClick(graph().viewport(), Qt::LeftButton, {}, QPoint(60, 14));
        QCOMPARE(graph().mouseAction(), GV_GraphXViewQt::eMouseNone);
    }

    void the_first_view_only_hides_when_closed()
    {
        QPointer<ViewDock> dock = _window->findChild<ViewDock*>(QStringLiteral("GraphDock"));
        dock->close();
        QVERIFY(!graph().isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(dock);
        entry("Window", "Graph View")->trigger();
        QVERIFY(graph().isVisible());
    }

    void the_frame_box_goes_where_nothing_is_drawn()
    {
        const GV_GraphUiInfo& shown = *graph().controller()->uiInfo();
        _robot->exposeModel(5, 1000, CEL_SharedPtr<TD_CelVq3d>());
        context().changeManager()->notify();
        auto* box = _window->findChild<FrameBox*>();
        QVERIFY(box && box->isEnabled());
        const auto nodes = [&] { return shown.rootUiNode() && shown.rootUiNode()->hasChildren(); };
        QVERIFY(nodes());
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("7"));
        QCOMPARE(box->value(), 1);
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(context().currentFrameInterface()->currentFrame(_session->currentScene()), 7);
        QVERIFY(!nodes());
        QVERIFY(!graph().grab().isNull());
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(context().currentFrameInterface()->currentFrame(_session->currentScene()), 6);
        context().currentFrameInterface()->setCurrentFrame(_session->currentScene(), 2);
        context().changeManager()->notify();
        QCOMPARE(box->value(), 2);
        QVERIFY(nodes());
    }
};

QTEST_MAIN(tst_workbench_window)
#include "tst_workbench_window.moc"
