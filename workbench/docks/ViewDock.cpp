// SPDX-License-Identifier: MIT

#include "workbench/docks/ViewDock.h"

#include "host/actions/AC_Manager.h"
#include "host/layout/TULayoutView.h"

#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize iconSize(16, 16);

} // namespace

ViewDock::ViewDock(const QString& title, TULayoutView* view, AC_Manager* manager, QWidget* parent)
    : QDockWidget(title, parent)
    , _view(view)
{
    if (QToolBar* bar = newToolBar(manager)) {
        auto* frame = new QWidget;
        auto* column = new QVBoxLayout(frame);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addWidget(bar);
        column->addWidget(view->widget(), 1);
        setWidget(frame);
    } else {
        setWidget(view->widget());
    }
    setKeptWhenClosed(false);
}

QToolBar* ViewDock::newToolBar(AC_Manager* manager)
{
    const QDomElement definition = _view->toolbar();
    QToolBar* bar =
        definition.isNull()
            ? nullptr
            : manager->createToolBar(definition.attribute(QStringLiteral("id")), nullptr);
    if (_view->hasMenu()) {
        if (!bar)
            bar = new QToolBar;
        addMenuButton(bar);
    }
    if (bar)
        bar->setIconSize(iconSize);
    return bar;
}

void ViewDock::addMenuButton(QToolBar* bar)
{
    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    auto* button = new QToolButton;
    button->setIcon(QIcon(QStringLiteral(":/workbench/icons/menu.svg")));
    button->setToolTip(tr("Menu of the view"));
    button->setAccessibleName(button->toolTip());
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(_view->menu(TULayoutView::eViewMenu));
    bar->addWidget(button);
}

void ViewDock::setKeptWhenClosed(bool kept)
{
    setAttribute(Qt::WA_DeleteOnClose, !kept);
}
