// SPDX-License-Identifier: MIT

#include "workbench/window/WorkbenchWindow.h"

#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/actions/AC_Manager.h"
#include "host/commands/CO_CommandManager.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/MO_GroupModule.h"
#include "host/scene/SC_CurrentFrameInterface.h"
#include "host/scene/SC_SessionContext.h"
#include "host/scene/TUScene.h"
#include "host/scene/TUSceneChangeManager.h"
#include "host/selection/SL_SelectionUtil.h"
#include "referencehost/scene/SceneElements.h"
#include "referencehost/session/HostSession.h"
#include "responder/GT_Graph3DResponder.h"
#include "subnodetree/SGV_Graph3DView.h"
#include "subnodetree/SubNodeFilterProxyModel.h"
#include "workbench/docks/LogDock.h"
#include "workbench/docks/SceneListDock.h"
#include "workbench/docks/ViewDock.h"
#include "workbench/files/ImportProgressDialog.h"
#include "workbench/isolation/IsolationResponder.h"
#include "workbench/preferences/PreferencesDialog.h"
#include "workbench/preferences/WindowLayout.h"
#include "workbench/resources/FadedIcon.h"
#include "workbench/resources/Resources.h"
#include "workbench/timeline/TimelineDock.h"
#include "workbench/timeline/TimelineView.h"
#include "workbench/timeline/TransportBar.h"
#include "workbench/views/DrawingFollower.h"
#include "workbench/views/FilterCount.h"
#include "workbench/views/FocusRing.h"
#include "workbench/views/GraphViewKeys.h"
#include "workbench/window/ActionPalette.h"
#include "workbench/window/FileActions.h"
#include "workbench/window/MessageBar.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeView>
#include <QUndoStack>
#include <QUndoView>

namespace {

constexpr QSize initialSize(1100, 800);
constexpr int listWidth = 270;
constexpr int sceneListHeight = 150;
constexpr int timelineHeight = 150;

/// Counts up whenever docks or tool bars come or go, so that an older layout is not restored.
constexpr int layoutVersion = 1;

QStringList localFiles(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths += url.toLocalFile();
    }
    return paths;
}

} // namespace

WorkbenchWindow::WorkbenchWindow(HostSession& session, const WindowOptions& options)
    : _session(session)
    , _loader(session)
    , _store(options.remembers ? std::make_unique<QSettings>() : nullptr)
    , _files(new FileActions(session, _loader, _store.get(), this))
    , _graphView(new GV_GraphXViewQt(session.context().actionManager(), this, &session.context()))
    , _treeView(new SGV_Graph3DView(session.context().actionManager(), this, &session.context()))
    , _responder(new GT_Graph3DResponder(session.context().actionManager(), this))
    , _isolation(new IsolationResponder(session, this))
    , _progress(new ImportProgressDialog(_loader, this))
{
    resize(initialSize);
    setAcceptDrops(true);
    _graphView->init(new GV_GraphXViewCtrl(_graphView, &session.context()));
    // The colours of rows come with the style sheet, and the menus with the definitions.
    loadActions();
    _treeView->init();
    takeIn(*_graphView);
    createDocks();
    createMenus();
    createToolBars();
    addEmptyState(*_treeView->treeView()->viewport(), [this] { return whyTreeIsEmpty(); });
    createStatusBar();
    new FocusRing(this);
    connectFiles();
    connectTimeline();
    _files->setWatching(options.watches);
    _layout = std::make_unique<WindowLayout>(*this, _store.get(), layoutVersion);
    _layout->restore();
    _messages->refresh();
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
    for (QAction* action : manager->actions())
        action->setIcon(withFadedDisabled(action->icon()));
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
    _timeline = new TimelineDock(_session, this);
    addDockWidget(Qt::BottomDockWidgetArea, _timeline);
    _log = new LogDock(this);
    addDockWidget(Qt::BottomDockWidgetArea, _log);
    _log->hide();
    resizeDocks({_sceneList, _graphDock}, {listWidth, initialSize.width() - listWidth},
                Qt::Horizontal);
    resizeDocks({_sceneList, _treeDock}, {sceneListHeight, initialSize.height() - sceneListHeight},
                Qt::Vertical);
    resizeDocks({_timeline}, {timelineHeight}, Qt::Vertical);
}

void WorkbenchWindow::connectTimeline()
{
    TimelineModels& models = _timeline->view().models();
    const auto nameOf = [this](const CEL_SharedPtr<TD_CelVq3d>& model) {
        return QFileInfo(_loader.library().originOf(model).path).completeBaseName();
    };
    models.setNamer(nameOf);
    models.setLibrary([this, nameOf](const MO_ElementModule&) {
        std::vector<TimelineModels::Offer> offers;
        for (const MO_ElementModule* element : elementsOf(_session.currentScene())) {
            for (const MO_ElementModule::Exposure& exposure : element->exposures())
                offers.push_back({nameOf(exposure.model), exposure.model});
        }
        return offers;
    });
    _timeline->view().refresh();
}

void WorkbenchWindow::addEmptyState(QWidget& viewport, const EmptyState::Text& text)
{
    auto* state = new EmptyState(&viewport, text);
    connect(state, &QLabel::linkActivated, _files, &FileActions::chooseFiles);
    const TUSceneChangeManager* changes = _session.context().changeManager();
    const auto refresh = [state] { state->refresh(); };
    connect(changes, &TUSceneChangeManager::selectionChanged, state, refresh);
    connect(changes, &TUSceneChangeManager::networkChanged, state, refresh);
    connect(changes, &TUSceneChangeManager::nodesChanged, state, refresh);
    connect(changes, &TUSceneChangeManager::currentFrameChanged, state, refresh);
    connect(changes, &TUSceneChangeManager::currentSceneChanged, state, refresh);
    connect(_treeView->filterField(), &QLineEdit::textChanged, state, refresh);
}

QString WorkbenchWindow::whyTreeIsEmpty() const
{
    const QString reason = whyNothingIsShown();
    if (!reason.isEmpty() || _treeView->proxyModel()->rowCount() > 0)
        return reason;
    const QString filter = _treeView->filterField()->text();
    return filter.isEmpty()
               ? tr("<b>The model has no subnodes.</b><br>Debug mode (Ctrl+Shift+D) lists all of "
                    "its nodes.")
               : tr("<b>No subnode has \"%1\" in its name.</b>").arg(filter.toHtmlEscaped());
}

QString WorkbenchWindow::whyNothingIsShown() const
{
    const TUScene* scene = _session.currentScene();
    if (!scene || scene->rootGroup()->nodes().empty()) {
        return tr("<b>Nothing is open.</b><br>Drop a model here, or <a href=\"open\">open one</a> "
                  "(Ctrl+O).");
    }
    const MO_Node* node = SL_SelectionUtil::getFirstNode(_session.context().selection());
    const auto* element = dynamic_cast<const MO_ElementModule*>(node);
    if (!element)
        return tr("<b>No model is selected.</b><br>Select one in the scene list.");
    const int frame = _session.context().currentFrameInterface()->currentFrame(scene);
    const CEL_SharedPtr<TD_CelVq3d> model = element->modelAt(frame);
    if (!model) {
        return tr("<b>%1 shows nothing at frame %2.</b><br>Go to another frame in the time line.")
            .arg(element->instanceName().toHtmlEscaped())
            .arg(frame);
    }
    return _files->isMissing(model)
               ? tr("<b>The model of %1 is missing.</b><br>Put its file back and reload (F5).")
                     .arg(element->instanceName().toHtmlEscaped())
               : QString();
}

void WorkbenchWindow::createStatusBar()
{
    statusBar()->addPermanentWidget(new FilterCount(*_treeView, this));
    statusBar()->showMessage(tr("F1 finds any action and its keys."));
}

void WorkbenchWindow::connectFiles()
{
    connect(_files, &FileActions::problem, _messages, &MessageBar::add);
    connect(_files, &FileActions::done, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
    connect(_files, &FileActions::titleChanged, this, [this](const QString& title, bool modified) {
        setWindowTitle(tr("%1[*] - Subnode Workbench").arg(title));
        setWindowModified(modified);
    });
    connect(_progress, &QProgressDialog::canceled, _files, &FileActions::cancel);
    _files->setTree(_treeView);
}

void WorkbenchWindow::takeIn(GV_GraphXViewQt& view)
{
    new GraphViewKeys(&view, _session.context());
    new DrawingFollower(&view, _session.context());
    addEmptyState(*view.viewport(), [this] { return whyNothingIsShown(); });
    // A canvas takes whatever is dragged over it for one of its items; files are for the window.
    view.setAcceptDrops(false);
    view.viewport()->setAcceptDrops(false);
}

ViewDock* WorkbenchWindow::openGraphView()
{
    TULayoutView* view = _graphView->clone(this);
    auto* dock = new ViewDock(tr("Graph View %1").arg(++_openedGraphViews), view,
                              _session.context().actionManager(), this);
    dock->setObjectName(QStringLiteral("GraphDock%1").arg(_openedGraphViews));
    if (_graphDock->isHidden())
        addDockWidget(Qt::RightDockWidgetArea, dock);
    else
        splitDockWidget(_graphDock, dock, Qt::Horizontal);
    if (auto* graph = qobject_cast<GV_GraphXViewQt*>(view->widget()))
        takeIn(*graph);
    dock->show();
    view->widget()->setFocus();
    return dock;
}

PreferencesDialog* WorkbenchWindow::openPreferences()
{
    if (!_preferences) {
        _preferences = new PreferencesDialog(this);
        connect(_preferences, &PreferencesDialog::applied, this, &WorkbenchWindow::repaintViews);
        emit preferencesCreated(_preferences);
    }
    _preferences->show();
    _preferences->raise();
    _preferences->activateWindow();
    return _preferences;
}

void WorkbenchWindow::repaintViews()
{
    for (GV_GraphXViewQt* view : findChildren<GV_GraphXViewQt*>())
        view->refreshView();
}

void WorkbenchWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void WorkbenchWindow::dropEvent(QDropEvent* event)
{
    _files->open(localFiles(*event->mimeData()));
    event->acceptProposedAction();
}

void WorkbenchWindow::closeEvent(QCloseEvent* event)
{
    if (!_files->mayClose()) {
        event->ignore();
        return;
    }
    _files->cancel();
    _layout->save();
    event->accept();
}
