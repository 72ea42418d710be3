// SPDX-License-Identifier: MIT
#include "host/actions/AC_ResponderTemplate.h"

#include "host/actions/AC_Manager.h"

AC_ResponderTemplate::AC_ResponderTemplate(const QString& identity)
    : _identity(identity)
{
}

AC_ResponderTemplate::~AC_ResponderTemplate()
{
    initActionManager(nullptr);
}

QString AC_ResponderTemplate::responderIdentity() const
{
    return _identity;
}

AC_Responder* AC_ResponderTemplate::parentResponder()
{
    return nullptr;
}

AC_Result AC_ResponderTemplate::handleEvent(QEvent*)
{
    return AC_NotHandled;
}

AC_Result AC_ResponderTemplate::perform(AC_ActionInfo* info)
{
    AC_Responder* parent = parentResponder();
    return parent ? parent->perform(info) : AC_NotHandled;
}

AC_Result AC_ResponderTemplate::performDownToChildren(AC_ActionInfo*)
{
    return AC_NotHandled;
}

void AC_ResponderTemplate::initActionManager(AC_Manager* manager)
{
    // Registering again would lose the place in the order of registration.
    if (manager == _manager)
        return;
    if (_manager)
        _manager->unregisterResponder(this);
    _manager = manager;
    if (_manager)
        _manager->registerResponder(this);
}

AC_Manager* AC_ResponderTemplate::actionManager() const
{
    return _manager;
}
