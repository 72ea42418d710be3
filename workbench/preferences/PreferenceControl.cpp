// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferenceControl.h"

#include "workbench/preferences/ColorButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {

using Edited = std::function<void(const QVariant&)>;

PreferenceControl colorControl(QWidget* parent, const Edited& edited)
{
    auto* button = new ColorButton(parent);
    QObject::connect(button, &ColorButton::colorEdited, button,
                     [edited](const QColor& color) { edited(color.rgba()); });
    return {button, [button](const QVariant& value) {
                button->setColor(QColor::fromRgba(value.toUInt()));
            }};
}

PreferenceControl fontControl(QWidget* parent, const Edited& edited)
{
    auto* box = new QFontComboBox(parent);
    box->setInsertPolicy(QComboBox::NoInsert);
    // A family that is half typed is none yet.
    QObject::connect(box, &QComboBox::textActivated, box,
                     [edited](const QString& family) { edited(family); });
    QObject::connect(box->lineEdit(), &QLineEdit::editingFinished, box,
                     [edited, box] { edited(box->currentText().trimmed()); });
    return {box, [box](const QVariant& value) {
                const QString family = value.toString();
                if (box->currentText() == family)
                    return;
                const QSignalBlocker quiet(box);
                box->setCurrentFont(QFont(family));
                // The box would rather show the family that stands in for a missing one.
                box->setEditText(family);
            }};
}

PreferenceControl choiceControl(const PreferenceKey& key, QWidget* parent, const Edited& edited)
{
    auto* box = new QComboBox(parent);
    box->addItems(key.choices);
    QObject::connect(box, &QComboBox::activated, box, [edited](int index) { edited(index); });
    const int fallback = key.defaultValue.toInt();
    return {box, [box, fallback](const QVariant& value) {
                const int index = value.toInt();
                const bool known = index >= 0 && index < box->count();
                box->setCurrentIndex(known ? index : fallback);
            }};
}

PreferenceControl switchControl(const PreferenceKey& key, QWidget* parent, const Edited& edited)
{
    auto* box = new QCheckBox(key.label, parent);
    QObject::connect(box, &QCheckBox::clicked, box, [edited](bool checked) { edited(checked); });
    return {box, [box](const QVariant& value) { box->setChecked(value.toBool()); }};
}

PreferenceControl integerControl(const PreferenceKey& key, QWidget* parent, const Edited& edited)
{
    auto* box = new QSpinBox(parent);
    box->setRange(key.minimum, key.maximum);
    QObject::connect(box, &QSpinBox::valueChanged, box, [edited](int value) { edited(value); });
    return {box, [box](const QVariant& value) {
                // What is being typed is left as it is.
                if (box->value() == value.toInt())
                    return;
                const QSignalBlocker quiet(box);
                box->setValue(value.toInt());
            }};
}

PreferenceControl controlOfKind(const PreferenceKey& key, QWidget* parent, const Edited& edited)
{
    switch (key.kind) {
    case PreferenceKey::Colour:
        return colorControl(parent, edited);
    case PreferenceKey::Font:
        return fontControl(parent, edited);
    case PreferenceKey::Choice:
        return choiceControl(key, parent, edited);
    case PreferenceKey::Switch:
        return switchControl(key, parent, edited);
    case PreferenceKey::Integer:
        break;
    }
    return integerControl(key, parent, edited);
}

} // namespace

PreferenceControl PreferenceControl::create(const PreferenceKey& key, QWidget* parent,
                                            const Edited& edited)
{
    PreferenceControl control = controlOfKind(key, parent, edited);
    control.widget->setObjectName(key.key);
    return control;
}
