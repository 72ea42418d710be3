// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/timeline/TimelineDock.h"
#include "workbench/timeline/TimelineView.h"
#include "workbench/timeline/TransportBar.h"

#include "SampleModel.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QAction>
#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenu>
#include <QRegularExpression>
#include <QTest>
#include <QUndoStack>
#include <limits>
#include <memory>

/// What tests of the time line have in common: the dock in a window, over a scene with a robot, in
/// a group a car, and what is clicked and pressed there.
class TimelineTest : public QObject
{
protected:
    using Exposure = MO_ElementModule::Exposure;
    using Exposures = std::vector<Exposure>;
    static constexpr int openEnd = std::numeric_limits<int>::max();

    Model _modelA;
    Model _modelB;
    std::unique_ptr<HostSession> _session;
    std::unique_ptr<QMainWindow> _window;
    TimelineDock* _dock = nullptr;
    MO_ElementModule* _robot = nullptr;
    MO_ElementModule* _car = nullptr;

    void makeModels()
    {
        QVERIFY(osg::osgInit(0, nullptr));
        _modelA = modelOf({"a"});
        _modelB = modelOf({"b"});
    }

    /// The robot shows a on 3 to 8 and b on 11 to 14; the car shows b from 5 on.
    void openTimeline()
    {
        // Off screen, docks, menus and tool tips are remarked upon; anything else is a failure.
        QTest::failOnWarning(QRegularExpression(
            QStringLiteral("^(?!This plugin does not support "
                           "(propagateSizeHints|raise|grabbing the keyboard))")));
        _session = std::make_unique<HostSession>();
        fillScene();
        _window = std::make_unique<QMainWindow>();
        _window->resize(700, 320);
        _dock = new TimelineDock(*_session, _window.get());
        _window->addDockWidget(Qt::BottomDockWidgetArea, _dock);
        _window->show();
        _window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(_window.get()));
        view().setFocus();
        view().models().setNamer([this](const CEL_SharedPtr<TD_CelVq3d>& model) {
            return model == _modelA ? QStringLiteral("walk") : QString();
        });
    }
    void fillScene()
    {
        MO_GroupModule& root = *_session->openScene(QStringLiteral("scene")).rootGroup();
        _robot = addElement(root, "robot");
        auto* group = static_cast<MO_GroupModule*>(
            root.insertNode(std::make_unique<MO_GroupModule>(QStringLiteral("group"))));
        _car = addElement(*group, "car");
        _robot->exposeModel(3, 8, _modelA);
        _robot->exposeModel(11, 14, _modelB);
        _car->exposeModel(5, openEnd, _modelB);
        tell();
    }
    void closeTimeline()
    {
        _window.reset();
        _session.reset();
    }
    void closeModels() { _modelA = _modelB = nullptr; }

    static MO_ElementModule* addElement(MO_GroupModule& group, const char* name)
    {
        return static_cast<MO_ElementModule*>(
            group.insertNode(std::make_unique<MO_ElementModule>(QString::fromLatin1(name))));
    }
    SC_SessionContext& context() { return _session->context(); }
    TimelineView& view() { return _dock->view(); }
    QWidget* canvas() { return view().viewport(); }
    QUndoStack& history() { return *context().commandManager()->history(); }
    void tell() { context().changeManager()->notify(); }
    Exposures robotShows() { return _robot->exposures(); }
    Exposures asOpened() const { return {{3, 8, _modelA}, {11, 14, _modelB}}; }

    int frame()
    {
        return context().currentFrameInterface()->currentFrame(_session->currentScene());
    }
    void goTo(int frame)
    {
        context().currentFrameInterface()->setCurrentFrame(_session->currentScene(), frame);
        tell();
    }

    /// The middle of the frame, on the ruler and in a row.
    QPoint onRuler(int frame)
    {
        return {qRound(view().geometry().xOf(frame + 0.5)), view().geometry().ruler().center().y()};
    }
    QPoint inRow(int row, double frame)
    {
        return {qRound(view().geometry().xOf(frame + 0.5)),
                view().geometry().rowRect(row).center().y()};
    }
    /// On the handles at the ends of an exposure.
    QPoint atFirst(int row, int first) { return inRow(row, first - 0.5) + QPoint(1, 0); }
    QPoint atLast(int row, int last) { return inRow(row, last + 0.5) - QPoint(2, 0); }

    void press(const QPoint& pos) { QTest::mousePress(canvas(), Qt::LeftButton, {}, pos); }
    void moveTo(const QPoint& pos) { QTest::mouseMove(canvas(), pos); }
    void release(const QPoint& pos) { QTest::mouseRelease(canvas(), Qt::LeftButton, {}, pos); }
    void click(const QPoint& pos, Qt::KeyboardModifiers held = {})
    {
        QTest::mouseClick(canvas(), Qt::LeftButton, held, pos);
    }
    /// Off screen, QTest::mouseMove carries no button, so moves with one held are sent.
    void dragTo(const QPoint& pos)
    {
        QMouseEvent event(QEvent::MouseMove, pos, canvas()->mapToGlobal(pos), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(canvas(), &event);
    }
    void drag(const QPoint& from, const QPoint& to)
    {
        press(from);
        dragTo((from + to) / 2);
        dragTo(to);
        release(to);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers held = {})
    {
        QTest::keyClick(_window->windowHandle(), key, held);
    }
    /// Opens the context menu by mouse; null when there is none.
    QMenu* menuAt(const QPoint& pos)
    {
        QTest::mouseClick(canvas(), Qt::RightButton, {}, pos);
        QContextMenuEvent event(QContextMenuEvent::Mouse, pos, canvas()->mapToGlobal(pos));
        QApplication::sendEvent(canvas(), &event);
        return openMenu();
    }
    QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static QStringList texts(const QMenu& menu)
    {
        QStringList shown;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator())
                shown << action->text().remove(u'&');
        }
        return shown;
    }
    static QAction* entry(const QMenu& menu, const QString& text)
    {
        for (QAction* action : menu.actions()) {
            if (action->text().remove(u'&') == text)
                return action;
        }
        return nullptr;
    }
    /// Chooses in the open menu as a click does.
    void choose(QMenu& menu, const QString& text)
    {
        QAction* action = entry(menu, text);
        QVERIFY2(action, qPrintable(texts(menu).join(u',')));
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
    }
};
