// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPushButton>

/// A button that shows a colour and its name, and opens a dialog to choose another one.
class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ColorButton(QWidget* parent = nullptr);

    QColor color() const { return _color; }
    /// Shows the colour; nothing is emitted.
    void setColor(const QColor& color);

signals:
    /// The user points at a colour, also while the dialog is still open. A dialog that is cancelled
    /// goes back to the colour that it opened with.
    void colorEdited(const QColor& color);

private:
    void chooseColor();
    void takeColor(const QColor& color);

    QColor _color;
};
