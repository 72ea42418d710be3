// SPDX-License-Identifier: MIT
#include "host/layout/TULayoutView.h"

#include "host/actions/AC_Manager.h"

#include <QMenu>
#include <map>

struct TULayoutView::Private
{
    struct ViewMenu
    {
        AC_Manager* manager = nullptr;
        QString id;
        std::unique_ptr<QMenu> menu;
    };

    QString viewName;
    std::map<MenuType, ViewMenu> menus;
};

TULayoutView::TULayoutView(const QString& viewName)
    : d(std::make_unique<Private>())
{
    d->viewName = viewName;
}

TULayoutView::~TULayoutView() = default;

QString TULayoutView::viewName() const
{
    return d->viewName;
}

QDomElement TULayoutView::toolbar()
{
    return {};
}

void TULayoutView::setMenu(AC_Manager* manager, const char* menuId, MenuType type)
{
    d->menus[type] = {manager, QString::fromLatin1(menuId), nullptr};
}

QMenu* TULayoutView::menu(MenuType type)
{
    const auto it = d->menus.find(type);
    if (it == d->menus.end() || !it->second.manager)
        return nullptr;
    Private::ViewMenu& view = it->second;
    // Not a child of the view's widget, which dies before this part of it does.
    if (!view.menu)
        view.menu.reset(view.manager->createMenu(view.id, nullptr));
    return view.menu.get();
}
