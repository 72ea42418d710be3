// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/ModelLoader.h"

#include <QMainWindow>

class GV_GraphXViewQt;
class HostSession;
class ImportProgressDialog;

/// The window of the workbench: the graph view over the session's scene, and what it takes to open
/// models.
class WorkbenchWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The session is not owned and must outlive the window.
    explicit WorkbenchWindow(HostSession& session);
    ~WorkbenchWindow() override;

    ModelLoader& loader() { return _loader; }
    GV_GraphXViewQt& graphView() { return *_graphView; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createMenus();
    void chooseModels();
    void showFailure(const QString& message);
    void showLoaded(MO_ElementModule* element);

    ModelLoader _loader;
    GV_GraphXViewQt* _graphView;
    ImportProgressDialog* _progress;
};
