// SPDX-License-Identifier: MIT

#include "workbench/preferences/ColorButton.h"

#include "workbench/preferences/PreferenceIcons.h"

#include <QColorDialog>

namespace {

constexpr QSize swatchSize(40, 16);

} // namespace

ColorButton::ColorButton(QWidget* parent)
    : QPushButton(parent)
{
    setIconSize(swatchSize);
    // Enter belongs to the dialog that the button is in.
    setAutoDefault(false);
    setColor(Qt::black);
    connect(this, &QPushButton::clicked, this, &ColorButton::chooseColor);
}

void ColorButton::setColor(const QColor& color)
{
    if (color == _color)
        return;
    _color = color;
    const QString name = color.name(QColor::HexArgb).toUpper();
    setIcon(PreferenceIcons::swatch(color));
    setText(name);
    setAccessibleDescription(name);
}

void ColorButton::chooseColor()
{
    auto* dialog = new QColorDialog(_color, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The platform's own dialogs leave out the alpha channel, or show no change before they close.
    dialog->setOptions(QColorDialog::ShowAlphaChannel | QColorDialog::DontUseNativeDialog);
    dialog->setWindowTitle(accessibleName());
    connect(dialog, &QColorDialog::currentColorChanged, this, &ColorButton::takeColor);
    connect(dialog, &QDialog::rejected, this, [this, before = _color] { takeColor(before); });
    dialog->open();
}

void ColorButton::takeColor(const QColor& color)
{
    if (color == _color)
        return;
    setColor(color);
    emit colorEdited(color);
}
