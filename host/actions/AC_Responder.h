// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"
#include "host/actions/AC_Result.h"

#include <QObject>
#include <QString>

class AC_ActionInfo;
class QEvent;

/// Something that actions can be routed to.
class HOST_EXPORT AC_Responder
{
public:
    virtual ~AC_Responder();

    /// The name by which menus and shortcuts address the responder.
    virtual QString responderIdentity() const = 0;
    /// Who is asked next when this one does not handle an action; null ends the chain.
    virtual AC_Responder* parentResponder() = 0;
    /// Lets the responder take an event that is not an action.
    virtual AC_Result handleEvent(QEvent* event) = 0;
    /// Calls the action's slot on the responder, and asks the parent when there is none.
    virtual AC_Result perform(AC_ActionInfo* info) = 0;
    /// The same without asking the parent.
    virtual AC_Result performDownToChildren(AC_ActionInfo* info) = 0;
};

Q_DECLARE_INTERFACE(AC_Responder, "AC_Responder")
