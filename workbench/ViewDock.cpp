// SPDX-License-Identifier: MIT

#include "workbench/ViewDock.h"

#include "host/layout/TULayoutView.h"

ViewDock::ViewDock(const QString& title, TULayoutView* view, QWidget* parent)
    : QDockWidget(title, parent)
    , _view(view)
{
    setWidget(view->widget());
    setKeptWhenClosed(false);
}

void ViewDock::setKeptWhenClosed(bool kept)
{
    setAttribute(Qt::WA_DeleteOnClose, !kept);
}
