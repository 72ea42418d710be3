// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_ResponderTemplateWidget.h"
#include "host/layout/TULayoutView.h"

#include <QWidget>

/// A layout view that is a plain widget, to be filled with others.
class HOST_EXPORT TUWidgetLayoutView : public AC_ResponderTemplateWidget<QWidget>,
                                       public TULayoutView
{
public:
    /// The manager is not owned and may be null; the identity is the responder's.
    TUWidgetLayoutView(AC_Manager* manager, const QString& viewName, QWidget* parent,
                       const QString& identity, Qt::WindowFlags flags);
    ~TUWidgetLayoutView() override;

    QWidget* widget() override;
};
