// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>

class AC_Manager;
class QToolBar;
class TULayoutView;

/// A dock around a view of the host's layout, with the view's tool bar and menu above it where it
/// has them. It owns the view, and with it dies when it is closed, unless it was told to stay.
class ViewDock : public QDockWidget
{
    Q_OBJECT

public:
    /// The manager makes the tool bar; it is not owned.
    ViewDock(const QString& title, TULayoutView* view, AC_Manager* manager, QWidget* parent);

    /// Never null.
    TULayoutView* view() const { return _view; }

    /// Whether closing only hides the dock.
    void setKeptWhenClosed(bool kept);

private:
    QToolBar* newToolBar(AC_Manager* manager);
    void addMenuButton(QToolBar* bar);

    TULayoutView* _view;
};
