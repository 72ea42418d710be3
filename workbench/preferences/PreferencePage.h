// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/preferences/PreferenceKey.h"

#include <QWidget>
#include <vector>

class PreferenceEdits;
class PreferenceField;
class QLabel;

/// A page of the preferences dialog: one row for each of its preferences.
class PreferencePage : public QWidget
{
    Q_OBJECT

public:
    /// The edits are not owned and must outlive the page.
    PreferencePage(PreferenceKey::Page page, PreferenceEdits& edits, QWidget* parent = nullptr);

    static QString title(PreferenceKey::Page page);
    /// Whether every preference of the page has its default.
    bool isDefault() const;

    void resetToDefaults();
    /// Adds a line below the rows; an empty text takes it away.
    void setRemark(const QString& text);

private:
    QLabel* _remark;
    std::vector<PreferenceField*> _fields;
};
