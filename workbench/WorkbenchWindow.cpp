// SPDX-License-Identifier: MIT

#include "workbench/WorkbenchWindow.h"

#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "host/scene/MO_ElementModule.h"
#include "host/scene/SC_SessionContext.h"
#include "referencehost/session/HostSession.h"
#include "workbench/ImportProgressDialog.h"
#include "workbench/import/ModelImporter.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QMenuBar>
#include <QStatusBar>

namespace {

QString fileFilter()
{
    QStringList patterns;
    for (const ModelFormat& format : ModelImporter::supportedFormats())
        patterns += QStringLiteral("*.") + format.extension;
    return QObject::tr("3D models (%1);;All files (*)").arg(patterns.join(u' '));
}

} // namespace

WorkbenchWindow::WorkbenchWindow(HostSession& session)
    : _loader(session)
    , _graphView(new GV_GraphXViewQt(session.context().actionManager(), this, &session.context()))
    , _progress(new ImportProgressDialog(_loader, this))
{
    setWindowTitle(tr("Subnode Workbench"));
    resize(1000, 800);
    _graphView->init(new GV_GraphXViewCtrl(_graphView, &session.context()));
    setCentralWidget(_graphView);
    createMenus();
    statusBar()->showMessage(tr("Open a model with File > Open."));
    connect(&_loader, &ModelLoader::failed, this, &WorkbenchWindow::showFailure);
    connect(&_loader, &ModelLoader::loaded, this, &WorkbenchWindow::showLoaded);
}

WorkbenchWindow::~WorkbenchWindow() = default;

void WorkbenchWindow::createMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    QAction* open = file->addAction(tr("&Open..."), this, &WorkbenchWindow::chooseModels);
    open->setShortcut(QKeySequence::Open);
    file->addSeparator();
    QAction* quit = file->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);
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
