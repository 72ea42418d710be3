// SPDX-License-Identifier: MIT
#pragma once

#include "host/actions/AC_ResponderTemplateWidget.h"
#include "host/layout/TULayoutView.h"

#include <QGraphicsView>

/// A layout view whose widget is a canvas.
class HOST_EXPORT TUCanvasViewLayoutView : public AC_ResponderTemplateWidget<QGraphicsView>,
                                           public TULayoutView
{
public:
    /// The manager is not owned and may be null; the identity is the responder's.
    TUCanvasViewLayoutView(AC_Manager* manager, const QString& viewName, QWidget* parent,
                           const QString& identity, Qt::WindowFlags flags);
    ~TUCanvasViewLayoutView() override;

    QWidget* widget() override;
};
