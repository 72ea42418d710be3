// SPDX-License-Identifier: MIT
#include "host/layout/TUCanvasViewLayoutView.h"

TUCanvasViewLayoutView::TUCanvasViewLayoutView(AC_Manager* manager, const QString& viewName,
                                               QWidget* parent, const QString& identity,
                                               Qt::WindowFlags flags)
    : AC_ResponderTemplateWidget<QGraphicsView>(manager, identity, parent, flags)
    , TULayoutView(viewName)
{
}

TUCanvasViewLayoutView::~TUCanvasViewLayoutView() = default;

QWidget* TUCanvasViewLayoutView::widget()
{
    return this;
}
