// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_ResponderTemplate.h"

#include <QWidget>

/// A widget of any class that is also a responder.
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
};
