// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_ActionInfo.h"
#include "host/actions/AC_ResponderTemplate.h"

#include <QEvent>
#include <QWidget>

/// A widget of any class that is also a responder: its slots are the actions that it knows.
template <class Widget>
class AC_ResponderTemplateWidget : public Widget, public AC_ResponderTemplate
{
public:
    /// The manager is not owned; null leaves the responder unregistered.
    AC_ResponderTemplateWidget(AC_Manager* manager, const QString& identity, QWidget* parent,
                               Qt::WindowFlags flags)
        : Widget(parent)
        , AC_ResponderTemplate(identity)
    {
        if (flags)
            this->setWindowFlags(flags);
        this->setObjectName(identity);
        initActionManager(manager);
    }

    AC_Result handleEvent(QEvent* event) override
    {
        return this->event(event) && event->isAccepted() ? AC_EventAccepted : AC_NotHandled;
    }

    AC_Result perform(AC_ActionInfo* info) override
    {
        const AC_Result result = performDownToChildren(info);
        AC_Responder* parent = parentResponder();
        return result == AC_NotHandled && parent ? parent->perform(info) : result;
    }

    AC_Result performDownToChildren(AC_ActionInfo* info) override
    {
        info->setResponder(this);
        return info->invokeOnQObject(this);
    }
};
