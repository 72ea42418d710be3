// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>
#include <memory>
#include <vector>

class AC_ActionInfo;
class AC_Responder;
class QAction;
class QByteArray;
class QDomElement;
class QMenu;
class QToolBar;
class QWidget;

/// Knows every responder of the application and every action that its definitions declare, builds
/// menus and tool bars of them, and routes an action that is triggered to the responder that it is
/// meant for. Before an action is shown or performed its validator is asked.
class HOST_EXPORT AC_Manager
{
public:
    AC_Manager();
    ~AC_Manager();
    AC_Manager(const AC_Manager&) = delete;
    AC_Manager& operator=(const AC_Manager&) = delete;

    /// @name Responders
    /// @{

    /// Not owned: a responder leaves before it dies. Null, and one that is there, are ignored.
    void registerResponder(AC_Responder* responder);
    void unregisterResponder(AC_Responder* responder);

    /// The responders with the identity; several views of one kind share an identity. The one that
    /// last had the focus comes first, those that never had it in the order of registration.
    std::vector<AC_Responder*> responders(const QString& identity) const;
    /// Notes that the responder has the focus now.
    void setFocusedResponder(AC_Responder* responder);

    /// @}
    /// @name Definitions
    /// @{

    /// Takes in actions, shortcuts, menus and tool bars from an XML text. On failure nothing is
    /// taken in, and the error, where one is asked for, says what is wrong and where.
    bool loadDefinitions(const QByteArray& xml, QString* error = nullptr);

    /// The action of that id, owned by the manager; null when none is defined.
    QAction* action(const QString& id) const;
    /// Every defined action, in the order of the definitions.
    std::vector<QAction*> actions() const;
    /// The key that the definitions assign to a shortcut that is no action, as Qt::Key; 0 when they
    /// do not.
    int shortcutKey(const QString& id) const;
    /// The definition of the tool bar; a null element when there is none.
    QDomElement toolbar(const QString& id) const;

    /// A new menu, or tool bar, owned by the parent; null when none of that id is defined. Both
    /// show the manager's own actions, so they look alike everywhere.
    QMenu* createMenu(const QString& id, QWidget* parent);
    QToolBar* createToolBar(const QString& id, QWidget* parent) const;

    /// @}
    /// @name Routing
    /// @{

    /// Offers the action to the responder with the identity that last had the focus; "*" stands for
    /// any identity. True when it was handled.
    bool route(const QString& identity, AC_ActionInfo& info) const;
    /// Offers the action to one responder after the other, the last one to have the focus first,
    /// until one handles it.
    bool routeToAny(AC_ActionInfo& info) const;
    /// Asks all validators now.
    void validateActions();
    /// To be called after a change that validators may depend on: they are asked again as soon as
    /// the application is idle, or before the next key that might be a shortcut.
    void invalidateActions();

    /// @}

private:
    struct Private;
    std::unique_ptr<Private> d;
};
