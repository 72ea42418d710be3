// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_ActionInfo.h"
#include "host/actions/AC_ResponderTemplate.h"

#include <QEvent>
#include <QObject>

/// An object of any class that is also a responder: its slots are the actions that it knows.
template <class Object>
class AC_ResponderTemplateObject : public Object, public AC_ResponderTemplate
{
public:
    /// Not registered with a manager yet.
    AC_ResponderTemplateObject(const QString& identity, QObject* parent, const char* objectName)
        : Object(parent)
        , AC_ResponderTemplate(identity)
    {
        this->setObjectName(QString::fromLatin1(objectName));
    }

    AC_Result handleEvent(QEvent* event) override
    {
        return Object::event(event) && event->isAccepted() ? AC_EventAccepted : AC_NotHandled;
    }

    AC_Result perform(AC_ActionInfo* info) override
    {
        info->setResponder(this);
        const AC_Result result = info->invokeOnQObject(this);
        AC_Responder* parent = this->parentResponder();
        return result == AC_NotHandled && parent ? parent->perform(info) : result;
    }

    AC_Result performDownToChildren(AC_ActionInfo* info) override
    {
        return info->invokeOnQObject(this);
    }
};
