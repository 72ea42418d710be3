// SPDX-License-Identifier: MIT

#include "workbench/isolation/IsolationResponder.h"

#include "host/actions/AC_ActionInfo.h"
#include "host/scene/SC_SessionContext.h"
#include "referencehost/session/HostSession.h"

IsolationResponder::IsolationResponder(HostSession& session, QObject* parent)
    : AC_ResponderTemplateObject<QObject>(QStringLiteral("isolation"), parent, "isolation")
    , _isolation(session)
{
    initActionManager(session.context().actionManager());
}

IsolationResponder::~IsolationResponder() = default;

void IsolationResponder::onActionIsolate()
{
    _isolation.toggle();
}

void IsolationResponder::onActionIsolateValidate(AC_ActionInfo* info)
{
    info->setEnabled(_isolation.canToggle());
    info->setChecked(_isolation.isIsolated(_isolation.selectedElement()));
}
