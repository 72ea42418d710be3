// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

class AC_Manager;

/// Watches the application for what actions depend on: which responder has the focus, and when
/// validators have to be asked again. Asking waits until the application is idle, since one gesture
/// may cause many changes, but never longer than to the next key.
class ActionWatch : public QObject
{
public:
    /// The manager owns the watch.
    explicit ActionWatch(AC_Manager& manager);

    /// Validation has to be done again; it has just been done.
    void invalidate();
    void setValid();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeFocus(QWidget* widget);

    AC_Manager& _manager;
    QTimer _idle;
};
