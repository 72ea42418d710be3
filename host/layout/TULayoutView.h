// SPDX-License-Identifier: MIT
#pragma once

#include "host/HostExport.h"

#include <QString>

class QWidget;

/// A view that the layout can dock, and open again beside itself.
class HOST_EXPORT TULayoutView
{
public:
    explicit TULayoutView(const QString& viewName);
    virtual ~TULayoutView();
    TULayoutView(const TULayoutView&) = delete;
    TULayoutView& operator=(const TULayoutView&) = delete;

    /// The kind of view, as layouts name it.
    QString viewName() const { return _viewName; }

    /// The widget to dock; never null. The view and its widget die together.
    virtual QWidget* widget() = 0;
    /// A second view on the same session, ready to be shown; owned by the parent.
    virtual TULayoutView* clone(QWidget* parent) const = 0;
    /// Whether the view's frame should offer a menu.
    virtual bool hasMenu() = 0;

private:
    QString _viewName;
};
