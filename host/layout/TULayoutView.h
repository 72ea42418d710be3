// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QDomElement>
#include <QString>
#include <memory>

class AC_Manager;
class QMenu;
class QWidget;

/// A view that the layout can dock, and open again beside itself.
class HOST_EXPORT TULayoutView
{
public:
    /// What a menu of a view is for.
    enum MenuType
    {
        eViewMenu = 0,
        ePopupMenu = 1
    };

    explicit TULayoutView(const QString& viewName);
    virtual ~TULayoutView();
    TULayoutView(const TULayoutView&) = delete;
    TULayoutView& operator=(const TULayoutView&) = delete;

    /// The kind of view, as layouts name it.
    QString viewName() const;

    /// The widget to dock; never null. The view and its widget die together.
    virtual QWidget* widget() = 0;
    /// A second view on the same session, ready to be shown; owned by the parent.
    virtual TULayoutView* clone(QWidget* parent) const = 0;
    /// Whether the view's frame should offer a menu.
    virtual bool hasMenu() = 0;
    /// The definition of the tool bar for the view's frame; null when it has none.
    virtual QDomElement toolbar();

    /// Says which of the manager's menus is the view's of that type. The manager is not owned and
    /// may be null, which leaves the view without one.
    void setMenu(AC_Manager* manager, const char* menuId, MenuType type);
    /// The menu, made at the first request and owned by the view; null when none was set, or the
    /// manager does not define it.
    QMenu* menu(MenuType type);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
