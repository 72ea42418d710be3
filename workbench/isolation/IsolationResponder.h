// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_ResponderTemplateObject.h"
#include "workbench/isolation/Isolation.h"

/// Offers isolating to menus, keys and the command line, as an action like those of the views.
class IsolationResponder : public AC_ResponderTemplateObject<QObject>
{
    Q_OBJECT
    Q_INTERFACES(AC_Responder)

public:
    /// Registers with the session's action manager. The session must outlive the responder.
    IsolationResponder(HostSession& session, QObject* parent);
    ~IsolationResponder() override;

    const Isolation& isolation() const { return _isolation; }

public slots:
    void onActionIsolate();
    void onActionIsolateValidate(AC_ActionInfo* info);

private:
    Isolation _isolation;
};
