// SPDX-License-Identifier: MIT
#include "host/layout/TUWidgetLayoutView.h"

TUWidgetLayoutView::TUWidgetLayoutView(AC_Manager* manager, const QString& viewName,
                                       QWidget* parent, const QString& identity,
                                       Qt::WindowFlags flags)
    : AC_ResponderTemplateWidget<QWidget>(manager, identity, parent, flags)
    , TULayoutView(viewName)
{
}

TUWidgetLayoutView::~TUWidgetLayoutView() = default;

QWidget* TUWidgetLayoutView::widget()
{
    return this;
}
