// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/// Shows which of the window's views has the keyboard: a ring inside the edges of the list, tree or
/// canvas with the focus. Fields and buttons show that themselves.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    /// Owned by the window.
    explicit FocusRing(QWidget* window);

    /// The view that wears the ring; null when none does.
    QWidget* view() const;

private:
    class Ring;

    void follow(QWidget* focused);

    QWidget* _window;
    /// A child of the view that wears it, with which it may go.
    QPointer<QWidget> _ring;
};
