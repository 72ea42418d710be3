// SPDX-License-Identifier: MIT
#pragma once

#include "workbench/preferences/PreferenceEdits.h"
#include "workbench/preferences/PreferenceKey.h"

#include <QDialog>

class PreferencePage;
class QDialogButtonBox;
class QListWidget;
class QPushButton;
class QStackedWidget;

/// Shows the preferences, and changes them while the user looks on: everything takes effect at
/// once. OK keeps it; any other way to close the dialog, or its destruction, brings back what was
/// there before. It may be shown modeless, and again after it was closed.
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PreferencesDialog(QWidget* parent = nullptr);
    ~PreferencesDialog() override;

    void showPage(PreferenceKey::Page page);
    /// Says on the page with the theme that another one holds for this run.
    void setThemeOverridden(bool overridden);

public slots:
    void accept() override;
    void reject() override;

signals:
    /// A preference was changed here, or changed back. Views that take a colour over only when they
    /// are next painted can be updated.
    void applied();

private:
    void createPages();
    void createButtons();
    void layOut();
    void finishTyping();
    void resetPage();
    void enableButtons();
    PreferencePage* currentPage() const;

    PreferenceEdits _edits;
    QListWidget* _list;
    QStackedWidget* _pages;
    QDialogButtonBox* _buttons = nullptr;
    QPushButton* _reset = nullptr;
};
