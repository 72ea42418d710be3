// SPDX-License-Identifier: MIT
#pragma once

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/actions/AC_Manager.h"
#include "host/models/AT_ModelData.h"
#include "host/preferences/PR_Preference.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/MO_PegModule.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SLB_NodeInterface.h"
#include "host/selection/SL_Selection.h"
#include "referencehost/session/HostSession.h"
#include "workbench/docks/SceneListDock.h"
#include "workbench/window/FileActions.h"
#include "workbench/window/WorkbenchWindow.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>
#include <memory>

/// What tests of the window have in common: the window with the robot in it, its menus, and keys.
class WindowTest : public QObject
{
protected:
    /// A window over an empty scene.
    void openEmptyWindow(const WindowOptions& options = {})
    {
        // Off screen, docks, menus and tool tips are remarked upon; anything else is a failure.
        QTest::failOnWarning(QRegularExpression(
            QStringLiteral("^(?!This plugin does not support "
                           "(propagateSizeHints|raise|grabbing the keyboard))")));
        PR_Preference::instance()->reset(QStringLiteral("GV_EXTENDED_DISPLAY"));
        _session = std::make_unique<HostSession>();
        _session->openScene(QStringLiteral("scene"));
        _window = std::make_unique<WorkbenchWindow>(*_session, options);
        _window->show();
        _window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(_window.get()));
    }

    void openWindow()
    {
        openEmptyWindow();
        open({QStringLiteral(MODELS "/robot.gltf")});
        _robot = element(0);
        QVERIFY(_robot);
        context().actionManager()->validateActions();
    }

    /// Opens the files and waits until all are open.
    void open(const QStringList& paths)
    {
        QSignalSpy opened(&_window->files(), &FileActions::allOpened);
        _window->files().open(paths);
        QTRY_COMPARE_WITH_TIMEOUT(opened.count(), 1, 30000);
    }

    void closeWindow()
    {
        _window.reset();
        _session.reset();
        PR_Preference::instance()->reset(QStringLiteral("GV_EXTENDED_DISPLAY"));
    }

    std::unique_ptr<HostSession> _session;
    std::unique_ptr<WorkbenchWindow> _window;
    MO_ElementModule* _robot = nullptr;

    SC_SessionContext& context() { return _session->context(); }
    MO_GroupModule& root() { return *_session->currentScene()->rootGroup(); }
    GV_GraphXViewQt& graph() { return _window->graphView(); }
    QTreeWidget& list() { return *_window->sceneList().list(); }

    /// Null when the scene has fewer nodes, or this one shows no models.
    MO_ElementModule* element(std::size_t index)
    {
        const auto& nodes = root().nodes();
        return index < nodes.size() ? dynamic_cast<MO_ElementModule*>(nodes[index]) : nullptr;
    }
    /// The names of the subnodes that are selected in the element.
    static QStringList subSelected(const MO_ElementModule& element)
    {
        QStringList names;
        if (!element.selInterface())
            return names;
        for (const int id : element.selInterface()->subSelectedIds()) {
            AT_ModelNodeKey key;
            if (element.getNodeKeyForSelId(id, key))
                names << key.name();
        }
        return names;
    }
    static bool isHidden(const MO_ElementModule& element, const QString& name)
    {
        const AT_ModelData* data = element.seqMeta(1);
        const AT_ModelNodeData* record = data ? data->nodeData(AT_ModelNodeKey(name)) : nullptr;
        return record && !record->visible;
    }
    MO_Node* addPeg(const char* name)
    {
        MO_Node* peg = root().insertNode(std::make_unique<MO_PegModule>(QString::fromLatin1(name)));
        context().changeManager()->notify();
        return peg;
    }
    void subSelect(const QString& name)
    {
        int id = 0;
        QVERIFY(_robot->getSelIdForNodeKey(AT_ModelNodeKey(name), id));
        const SL_Selection::BatchSelectionModeScope scope(context().selection());
        _robot->selInterface()->subSelect(id, false);
    }
    QStringList listed(bool selectedOnly = false)
    {
        QStringList names;
        for (int i = 0; i < list().topLevelItemCount(); ++i) {
            if (!selectedOnly || list().topLevelItem(i)->isSelected())
                names << list().topLevelItem(i)->text(0);
        }
        return names;
    }
    void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        // Off screen, nobody gives the keys back when a dialog is closed.
        _window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(_window.get()));
        QTest::keyClick(_window->windowHandle(), key, held);
    }
    /// To whatever has the focus in the window; only ASCII.
    static void typeInto(QWindow* window, const QString& text)
    {
        for (const QChar letter : text)
            QTest::keyClick(window, letter.toLatin1());
    }
    QMenu* menu(const QString& title)
    {
        for (const QAction* action : _window->menuBar()->actions()) {
            if (action->text().remove(u'&') == title)
                return action->menu();
        }
        return nullptr;
    }
    QAction* entry(const QString& menuTitle, const QString& start)
    {
        if (const QMenu* found = menu(menuTitle)) {
            for (QAction* action : found->actions()) {
                if (action->text().remove(u'&').startsWith(start))
                    return action;
            }
        }
        return nullptr;
    }
};
