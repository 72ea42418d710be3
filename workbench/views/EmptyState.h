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

    /// Owned by the widget that it lies over.
    EmptyState(QWidget* over, Text text);

    /// Asks for the text anew.
    void refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();

    Text _currentText;
};
