// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>

class TULayoutView;

/// A dock around a view of the host's layout. It owns the view, and with it dies when it is closed,
/// unless it was told to stay.
class ViewDock : public QDockWidget
{
    Q_OBJECT

public:
    ViewDock(const QString& title, TULayoutView* view, QWidget* parent);

    /// Never null.
    TULayoutView* view() const { return _view; }

    /// Whether closing only hides the dock.
    void setKeptWhenClosed(bool kept);

private:
    TULayoutView* _view;
};
