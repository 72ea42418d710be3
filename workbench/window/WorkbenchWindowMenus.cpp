// SPDX-License-Identifier: MIT

#include "host/actions/AC_Manager.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/SC_SessionContext.h"
#include "referencehost/session/HostSession.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "workbench/docks/LogDock.h"
#include "workbench/docks/SceneListDock.h"
#include "workbench/docks/ViewDock.h"
#include "workbench/preferences/WindowLayout.h"
#include "workbench/timeline/TimelineDock.h"
#include "workbench/timeline/TimelineView.h"
#include "workbench/timeline/TransportBar.h"
#include "workbench/window/ActionPalette.h"
#include "workbench/window/FileActions.h"
#include "workbench/window/MessageBar.h"
#include "workbench/window/WorkbenchWindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>
#include <QUndoStack>

namespace {

/// The platform's own keys, and the two that people try.
QList<QKeySequence> redoKeys()
{
    QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Redo);
    for (const QKeySequence& key :
         {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)}) {
        if (!keys.contains(key))
            keys.append(key);
    }
    return keys;
}

} // namespace

void WorkbenchWindow::createMenus()
{
    _files->fillMenu(*menuBar()->addMenu(tr("&File")));
    createEditMenu();
    AC_Manager* manager = _session.context().actionManager();
    for (const char* id : {"VIEW_MENU", "SUBNODES_MENU"})
        menuBar()->addMenu(manager->createMenu(QString::fromLatin1(id), this));
    createPlaybackMenu();
    createWindowMenu();
    createHelpMenu();
}

void WorkbenchWindow::createEditMenu()
{
    const QUndoStack* history = _session.context().commandManager()->history();
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = history->createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = history->createRedoAction(this, tr("&Redo"));
    redo->setShortcuts(redoKeys());
    edit->addActions({undo, redo});
    edit->addSeparator();
    const AC_Manager* manager = _session.context().actionManager();
    for (const char* id : {"SELECT_ALL", "DESELECT"})
        edit->addAction(manager->action(QString::fromLatin1(id)));
    QAction* find = edit->addAction(tr("&Filter Subnodes"), this, [this] {
        _treeDock->show();
        _treeDock->raise();
        _treeView->filterField()->setFocus(Qt::ShortcutFocusReason);
        _treeView->filterField()->selectAll();
    });
    find->setShortcut(QKeySequence::Find);
    edit->addSeparator();
    QAction* preferences =
        edit->addAction(tr("&Preferences..."), this, &WorkbenchWindow::openPreferences);
    preferences->setShortcut(Qt::CTRL | Qt::Key_Comma);
    preferences->setMenuRole(QAction::PreferencesRole);
}

void WorkbenchWindow::createPlaybackMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Playback"));
    // The time line has keys of its own, which other views need for themselves.
    const QList<QKeySequence> keys = {QKeySequence(), QKeySequence(u','), QKeySequence(u'P'),
                                      QKeySequence(u'.'), QKeySequence()};
    const QList<QAction*> transport = _timeline->transport().transportActions();
    for (qsizetype i = 0; i < transport.size(); ++i) {
        QAction* theirs = transport[i];
        QAction* own = menu->addAction(theirs->icon(), theirs->text());
        own->setShortcut(keys.value(i));
        own->setCheckable(theirs->isCheckable());
        const auto follow = [own, theirs] {
            own->setText(theirs->text());
            own->setIcon(theirs->icon());
            own->setEnabled(theirs->isEnabled());
            own->setChecked(theirs->isChecked());
        };
        connect(theirs, &QAction::changed, own, follow);
        connect(own, &QAction::triggered, theirs, &QAction::trigger);
        follow();
    }
}

void WorkbenchWindow::createWindowMenu()
{
    QMenu* window = menuBar()->addMenu(tr("&Window"));
    QAction* another =
        window->addAction(QIcon(QStringLiteral(":/workbench/icons/new-view.svg")),
                          tr("New &Graph View"), this, &WorkbenchWindow::openGraphView);
    another->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_N);
    window->addSeparator();
    int number = 1;
    for (QDockWidget* dock : std::initializer_list<QDockWidget*>{_sceneList, _treeDock, _graphDock,
                                                                 _timeline, _history, _log}) {
        QAction* shown = dock->toggleViewAction();
        shown->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_0 + number++)));
        window->addAction(shown);
    }
    window->addSeparator();
    window->addAction(tr("&Reset Layout"), this, [this] {
        _layout->reset();
        _messages->refresh();
    });
}

void WorkbenchWindow::createHelpMenu()
{
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    _palette = new ActionPalette(*menuBar(), this);
    QList<QAction*> ofTimeline = _timeline->view().actions();
    for (QAction* inMenu : _timeline->transport().transportActions())
        ofTimeline.removeOne(inMenu);
    _palette->addActions(_timeline->windowTitle(), ofTimeline);
    QAction* find = help->addAction(tr("Find &Action..."), _palette, &ActionPalette::open);
    find->setShortcuts({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P), QKeySequence(Qt::Key_F1)});
    help->addSeparator();
    QAction* about = help->addAction(tr("A&bout Subnode Workbench"), this, [this] {
        QMessageBox::about(this, tr("About Subnode Workbench"),
                           tr("<b>Subnode Workbench %1</b><br>Shows the inner hierarchy of 3D "
                              "models and works on their parts.<br>Free software under the MIT "
                              "licence.")
                               .arg(QStringLiteral(SUBNODEVIEWS_VERSION)));
    });
    about->setMenuRole(QAction::AboutRole);
    help->addAction(tr("About &Qt"), qApp, &QApplication::aboutQt);
}

void WorkbenchWindow::createToolBars()
{
    addToolBar(
        _session.context().actionManager()->createToolBar(QStringLiteral("GRAPH_TOOLBAR"), this));
    addToolBarBreak();
    _messages = new MessageBar(this);
    addToolBar(_messages);
}
