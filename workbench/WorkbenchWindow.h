// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/files/ModelLoader.h"

#include <QMainWindow>

class GV_GraphXViewQt;
class GT_Graph3DResponder;
class HostSession;
class ImportProgressDialog;
class LogDock;
class QDockWidget;
class SceneListDock;
class SGV_Graph3DView;
class ViewDock;

/// The window of the workbench: docks with the views over the session's scene, the list of the
/// scene, menus, tool bars, and what it takes to open models.
class WorkbenchWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The session is not owned and must outlive the window.
    explicit WorkbenchWindow(HostSession& session);
    ~WorkbenchWindow() override;

    ModelLoader& loader() { return _loader; }
    /// The graph view that stays when it is closed.
    GV_GraphXViewQt& graphView() { return *_graphView; }
    SGV_Graph3DView& treeView() { return *_treeView; }
    LogDock& log() { return *_log; }
    SceneListDock& sceneList() { return *_sceneList; }

    /// Opens another graph view beside the one that last had the focus.
    ViewDock* openGraphView();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void loadActions();
    void createDocks();
    void createMenus();
    void createToolBars();
    void chooseModels();
    void showFailure(const QString& message);
    void showLoaded(MO_ElementModule* element);

    HostSession& _session;
    ModelLoader _loader;
    GV_GraphXViewQt* _graphView;
    SGV_Graph3DView* _treeView;
    ViewDock* _graphDock = nullptr;
    ViewDock* _treeDock = nullptr;
    SceneListDock* _sceneList = nullptr;
    QDockWidget* _history = nullptr;
    LogDock* _log = nullptr;
    /// Carries the actions that belong to no view.
    GT_Graph3DResponder* _responder;
    ImportProgressDialog* _progress;
    int _openedGraphViews = 1;
};
