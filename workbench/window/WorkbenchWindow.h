// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/files/ModelLoader.h"
#include "workbench/views/EmptyState.h"

#include <QMainWindow>
#include <memory>

class ActionPalette;
class FileActions;
class GT_Graph3DResponder;
class GV_GraphXViewQt;
class HostSession;
class ImportProgressDialog;
class IsolationResponder;
class LogDock;
class MessageBar;
class PreferencesDialog;
class QDockWidget;
class QSettings;
class SceneListDock;
class SGV_Graph3DView;
class TimelineDock;
class ViewDock;
class WindowLayout;

/// What a window does beyond the run of the program.
struct WindowOptions
{
    /// Remembers its layout and the files that it opened, and keeps automatic copies of scenes.
    bool remembers = false;
    /// Reads models again when their files change.
    bool watches = false;
};

/// The window of the workbench: docks with the views over the session's scene, the list of the
/// scene and the time line, menus, tool bars, and what it takes to open and save.
class WorkbenchWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The session is not owned, must outlive the window and have a scene.
    explicit WorkbenchWindow(HostSession& session, const WindowOptions& options = {});
    ~WorkbenchWindow() override;

    ModelLoader& loader() { return _loader; }
    FileActions& files() { return *_files; }
    /// The graph view that stays when it is closed.
    GV_GraphXViewQt& graphView() { return *_graphView; }
    SGV_Graph3DView& treeView() { return *_treeView; }
    LogDock& log() { return *_log; }
    SceneListDock& sceneList() { return *_sceneList; }
    TimelineDock& timeline() { return *_timeline; }
    MessageBar& messages() { return *_messages; }
    ActionPalette& palette() { return *_palette; }

    /// Opens another graph view beside the one that last had the focus.
    ViewDock* openGraphView();
    /// Opens the preferences, or brings them to the front.
    PreferencesDialog* openPreferences();

signals:
    /// The preferences were opened for the first time.
    void preferencesCreated(PreferencesDialog* dialog);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void loadActions();
    /// What every graph view of the window has beyond those of others.
    void takeIn(GV_GraphXViewQt& view);
    void createDocks();
    void createMenus();
    void createEditMenu();
    void createPlaybackMenu();
    void createWindowMenu();
    void createHelpMenu();
    void createToolBars();
    void addEmptyState(QWidget& viewport, const EmptyState::Text& text);
    void createStatusBar();
    void connectFiles();
    void connectTimeline();
    QString whyNothingIsShown() const;
    QString whyTreeIsEmpty() const;
    void repaintViews();

    HostSession& _session;
    ModelLoader _loader;
    /// Null where nothing is remembered.
    std::unique_ptr<QSettings> _store;
    FileActions* _files;
    GV_GraphXViewQt* _graphView;
    SGV_Graph3DView* _treeView;
    ViewDock* _graphDock = nullptr;
    ViewDock* _treeDock = nullptr;
    SceneListDock* _sceneList = nullptr;
    TimelineDock* _timeline = nullptr;
    QDockWidget* _history = nullptr;
    LogDock* _log = nullptr;
    MessageBar* _messages = nullptr;
    ActionPalette* _palette = nullptr;
    PreferencesDialog* _preferences = nullptr;
    std::unique_ptr<WindowLayout> _layout;
    /// These carry the actions that belong to no view.
    GT_Graph3DResponder* _responder;
    IsolationResponder* _isolation;
    ImportProgressDialog* _progress;
    int _openedGraphViews = 1;
};
