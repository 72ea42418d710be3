// SPDX-License-Identifier: MIT
#pragma once

#include "tests/workbench/preferences/PreferencesTest.h"
#include "workbench/preferences/ColorButton.h"
#include "workbench/preferences/PreferencesDialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QWindow>
#include <memory>

/// What tests of the dialog have in common: the dialog, its parts, and a mouse and keys for them.
class PreferencesDialogTest : public PreferencesTest
{
protected:
    std::unique_ptr<PreferencesDialog> _dialog;

    bool open(PreferenceKey::Page page = PreferenceKey::GraphViewColours)
    {
        _dialog = std::make_unique<PreferencesDialog>();
        _dialog->showPage(page);
        return show();
    }
    bool show()
    {
        _dialog->move(100, 100);
        _dialog->show();
        _dialog->activateWindow();
        return QTest::qWaitForWindowActive(_dialog.get());
    }

    template <class Control = QWidget>
    Control* control(const QString& name)
    {
        return _dialog->findChild<Control*>(name);
    }
    QAbstractButton* resetButton(const QString& name)
    {
        return _dialog->findChild<QAbstractButton*>(name + QStringLiteral("_RESET"));
    }
    QListWidget* pages() { return _dialog->findChild<QListWidget*>(QStringLiteral("pages")); }
    QPushButton* button(QDialogButtonBox::StandardButton which)
    {
        return _dialog->findChild<QDialogButtonBox*>()->button(which);
    }
    QPushButton* pageResetButton()
    {
        for (QPushButton* each : _dialog->findChildren<QPushButton*>()) {
            if (each->text() == QLatin1String("Reset to &Defaults"))
                return each;
        }
        return nullptr;
    }
    QColorDialog* colorDialog() { return _dialog->findChild<QColorDialog*>(); }

    static void click(QWidget* widget)
    {
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, widget->rect().center());
    }
    void type(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QTest::keyClick(_dialog->windowHandle(), key, held);
    }
    /// Presses the key that the label's mnemonic stands for.
    void typeMnemonicOf(const QString& label)
    {
        const QChar letter = label.at(label.indexOf(u'&') + 1);
        type(Qt::Key(letter.toUpper().unicode()), Qt::AltModifier);
    }

    /// What the control shows, as a value of the kind of the key.
    QVariant shown(const PreferenceKey& key)
    {
        QWidget* widget = control(key.key);
        switch (key.kind) {
        case PreferenceKey::Colour:
            return qobject_cast<ColorButton*>(widget)->color().rgba();
        case PreferenceKey::Font:
            return qobject_cast<QComboBox*>(widget)->currentText();
        case PreferenceKey::Choice:
            return qobject_cast<QComboBox*>(widget)->currentIndex();
        case PreferenceKey::Switch:
            return qobject_cast<QCheckBox*>(widget)->isChecked();
        case PreferenceKey::Integer:
            return qobject_cast<QSpinBox*>(widget)->value();
        }
        return {};
    }
};
