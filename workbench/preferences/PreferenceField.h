// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/preferences/PreferenceControl.h"
#include "workbench/preferences/PreferenceKey.h"

#include <QObject>

class PreferenceEdits;
class QGridLayout;
class QToolButton;

/// One preference on a page of the dialog: its label, its control, a button that brings the default
/// back, and what there is to note. It follows the preference, whoever changes it.
class PreferenceField : public QObject
{
    Q_OBJECT

public:
    /// Adds its widgets to the layout, below what is there, and the page as their parent. The edits
    /// are not owned and must outlive the field.
    PreferenceField(const PreferenceKey& key, PreferenceEdits& edits, QGridLayout& layout,
                    QWidget& page);

    const PreferenceKey& key() const { return _key; }
    bool isDefault() const;

    void resetToDefault();
    void showStored();

private:
    void addLabel(QGridLayout& layout, QWidget& page, int row);
    void addResetButton(QGridLayout& layout, QWidget& page, int row);
    static void addNote(QGridLayout& layout, QWidget& page, const QString& text);

    PreferenceKey _key;
    PreferenceEdits& _edits;
    PreferenceControl _control;
    QToolButton* _reset = nullptr;
};
