// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <functional>

/// Says over an empty view why it is empty and what to do next. It lies over the middle of the
/// view's viewport, follows its size, and lets everything but its links through to the view.
class EmptyState : public QLabel
{
    Q_OBJECT

public:
    /// Gives the text to show now, as rich text; an empty one hides the label.
    using Text = std::function<QString()>;

    /// Owned by the viewport that it lies over.
    EmptyState(QWidget* viewport, Text text);

    /// Asks for the text anew.
    void refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void place();

    Text _currentText;
    /// Whether the pointer is over a link, and was when a button was pressed.
    bool _isOverLink = false;
    bool _isPressed = false;
};
