// SPDX-License-Identifier: MIT

#include "workbench/WorkbenchWindow.h"

#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/actions/AC_Manager.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_SessionContext.h"
#include "referencehost/session/HostSession.h"
#include "responder/GT_Graph3DResponder.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "workbench/docks/LogDock.h"
#include "workbench/docks/SceneListDock.h"
#include "workbench/docks/ViewDock.h"
#include "workbench/files/ImportProgressDialog.h"
#include "workbench/import/ModelImporter.h"
#include "workbench/resources/Resources.h"
#include "workbench/timeline/FrameBox.h"

#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QUndoStack>
#include <QUndoView>

namespace {

constexpr QSize initialSize(1100, 800);
constexpr int listWidth = 270;
constexpr int sceneListHeight = 160;

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

QString fileFilter()
{
    QStringList patterns;
    for (const ModelFormat& format : ModelImporter::supportedFormats())
        patterns += QStringLiteral("*.") + format.extension;
    return QObject::tr("3D models (%1);;All files (*)").arg(patterns.join(u' '));
}

} // namespace

WorkbenchWindow::WorkbenchWindow(HostSession& session)
    : _session(session)
    , _loader(session)
    , _graphView(new GV_GraphXViewQt(session.context().actionManager(), this, &session.context()))
    , _treeView(new SGV_Graph3DView(session.context().actionManager(), this, &session.context()))
    , _responder(new GT_Graph3DResponder(session.context().actionManager(), this))
    , _progress(new ImportProgressDialog(_loader, this))
{
    setWindowTitle(tr("Subnode Workbench"));
    resize(initialSize);
    _graphView->init(new GV_GraphXViewCtrl(_graphView, &session.context()));
    // The colours of rows come with the style sheet, and the menus with the definitions.
    loadActions();
    _treeView->init();
    createDocks();
    createMenus();
    createToolBars();
    statusBar()->showMessage(tr("Open a model with File > Open."));
    connect(&_loader, &ModelLoader::failed, this, &WorkbenchWindow::showFailure);
    connect(&_loader, &ModelLoader::loaded, this, &WorkbenchWindow::showLoaded);
}

WorkbenchWindow::~WorkbenchWindow() = default;

void WorkbenchWindow::loadActions()
{
    initWorkbenchResources();
    AC_Manager* manager = _session.context().actionManager();
    QFile definitions(QStringLiteral(":/workbench/actions.xml"));
    QString error;
    // A second window finds them there already.
    if (manager->actions().empty() && (!definitions.open(QIODevice::ReadOnly) ||
                                       !manager->loadDefinitions(definitions.readAll(), &error)))
        qFatal("The action definitions cannot be read: %s", qUtf8Printable(error));
}

void WorkbenchWindow::createDocks()
{
    setDockNestingEnabled(true);
    _sceneList = new SceneListDock(_session, this);
    addDockWidget(Qt::LeftDockWidgetArea, _sceneList);
    AC_Manager* manager = _session.context().actionManager();
    _treeDock = new ViewDock(tr("Subnode Tree"), _treeView, manager, this);
    _treeDock->setObjectName(QStringLiteral("TreeDock"));
    _treeDock->setKeptWhenClosed(true);
    addDockWidget(Qt::LeftDockWidgetArea, _treeDock);
    _graphDock = new ViewDock(tr("Graph View"), _graphView, manager, this);
    _graphDock->setObjectName(QStringLiteral("GraphDock"));
    _graphDock->setKeptWhenClosed(true);
    addDockWidget(Qt::RightDockWidgetArea, _graphDock);
    _history = new QDockWidget(tr("History"), this);
    _history->setObjectName(QStringLiteral("HistoryDock"));
    auto* steps = new QUndoView(_session.context().commandManager()->history(), _history);
    steps->setEmptyLabel(tr("As opened"));
    steps->setAccessibleName(tr("Undo history"));
    _history->setWidget(steps);
    addDockWidget(Qt::RightDockWidgetArea, _history);
    _history->hide();
    _log = new LogDock(this);
    addDockWidget(Qt::BottomDockWidgetArea, _log);
    _log->hide();
    resizeDocks({_sceneList, _graphDock}, {listWidth, initialSize.width() - listWidth},
                Qt::Horizontal);
    resizeDocks({_sceneList, _treeDock}, {sceneListHeight, initialSize.height() - sceneListHeight},
                Qt::Vertical);
}

void WorkbenchWindow::createMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    QAction* open = file->addAction(tr("&Open..."), this, &WorkbenchWindow::chooseModels);
    open->setShortcut(QKeySequence::Open);
    file->addSeparator();
    QAction* quit = file->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);

    AC_Manager* manager = _session.context().actionManager();
    const QUndoStack* history = _session.context().commandManager()->history();
    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = history->createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = history->createRedoAction(this, tr("&Redo"));
    redo->setShortcuts(redoKeys());
    edit->addActions({undo, redo});
    edit->addSeparator();
    for (const char* id : {"SELECT_ALL", "DESELECT"})
        edit->addAction(manager->action(QString::fromLatin1(id)));

    for (const char* id : {"VIEW_MENU", "SUBNODES_MENU"})
        menuBar()->addMenu(manager->createMenu(QString::fromLatin1(id), this));

    QMenu* window = menuBar()->addMenu(tr("&Window"));
    QAction* another =
        window->addAction(QIcon(QStringLiteral(":/workbench/icons/new-view.svg")),
                          tr("New &Graph View"), this, &WorkbenchWindow::openGraphView);
    another->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_N);
    window->addSeparator();
    window->addActions({_sceneList->toggleViewAction(), _treeDock->toggleViewAction(),
                        _graphDock->toggleViewAction(), _history->toggleViewAction(),
                        _log->toggleViewAction()});
}

void WorkbenchWindow::createToolBars()
{
    QToolBar* graph =
        _session.context().actionManager()->createToolBar(QStringLiteral("GRAPH_TOOLBAR"), this);
    addToolBar(graph);
    auto* frame = new QToolBar(tr("Frame"), this);
    frame->setObjectName(QStringLiteral("FRAME_TOOLBAR"));
    frame->addWidget(new FrameBox(_session, frame));
    addToolBar(frame);
}

ViewDock* WorkbenchWindow::openGraphView()
{
    TULayoutView* view = _graphView->clone(this);
    auto* dock = new ViewDock(tr("Graph View %1").arg(++_openedGraphViews), view,
                              _session.context().actionManager(), this);
    if (_graphDock->isHidden())
        addDockWidget(Qt::RightDockWidgetArea, dock);
    else
        splitDockWidget(_graphDock, dock, Qt::Horizontal);
    dock->show();
    view->widget()->setFocus();
    return dock;
}

void WorkbenchWindow::chooseModels()
{
    const QStringList paths =
        QFileDialog::getOpenFileNames(this, tr("Open Models"), QString(), fileFilter());
    if (!paths.isEmpty())
        _loader.load(paths);
}

void WorkbenchWindow::showFailure(const QString& message)
{
    statusBar()->showMessage(message);
}

void WorkbenchWindow::showLoaded(MO_ElementModule* element)
{
    statusBar()->showMessage(tr("Opened \"%1\".").arg(element->instanceName()));
}

void WorkbenchWindow::closeEvent(QCloseEvent* event)
{
    _loader.cancel();
    event->accept();
}
