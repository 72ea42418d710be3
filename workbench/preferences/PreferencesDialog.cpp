// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferencesDialog.h"

#include "host/preferences/PR_Preference.h"
#include "workbench/preferences/PreferencePage.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int gap = 16;
constexpr int listSpacing = 2;

} // namespace

PreferencesDialog::PreferencesDialog(QWidget* parent)
    : QDialog(parent)
    , _list(new QListWidget(this))
    , _pages(new QStackedWidget(this))
{
    setWindowTitle(tr("Preferences"));
    createPages();
    createButtons();
    layOut();
    connect(&_edits, &PreferenceEdits::applied, this, &PreferencesDialog::applied);
    connect(PR_Preference::instance(), &PR_Preference::preferenceChanged, this,
            &PreferencesDialog::enableButtons);
    showPage(PreferenceKey::GraphViewColours);
}

PreferencesDialog::~PreferencesDialog()
{
    // Fields lose the focus when they are hidden, and enter what was typed.
    hide();
    _edits.revert();
}

void PreferencesDialog::createPages()
{
    _list->setObjectName(QStringLiteral("pages"));
    _list->setAccessibleName(tr("Pages"));
    for (const PreferenceKey::Page page :
         {PreferenceKey::GraphViewColours, PreferenceKey::GraphView, PreferenceKey::Appearance}) {
        _list->addItem(PreferencePage::title(page));
        _pages->addWidget(new PreferencePage(page, _edits));
    }
    _list->setSpacing(listSpacing);
    // Wide enough for every title, and for the frame around them.
    _list->setFixedWidth(_list->sizeHintForColumn(0) + gap);
    connect(_list, &QListWidget::currentRowChanged, this, [this](int row) {
        _pages->setCurrentIndex(row);
        enableButtons();
    });
}

void PreferencesDialog::createButtons()
{
    // Made after the pages, the buttons come after them when the focus goes round, too.
    _buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    _reset = _buttons->addButton(tr("Reset to &Defaults"), QDialogButtonBox::ResetRole);
    _reset->setToolTip(tr("Brings back the defaults of everything on this page"));
    _reset->setAutoDefault(false);
    connect(_reset, &QPushButton::clicked, this, &PreferencesDialog::resetPage);
    connect(_buttons, &QDialogButtonBox::accepted, this, &PreferencesDialog::accept);
    connect(_buttons, &QDialogButtonBox::rejected, this, &PreferencesDialog::reject);
}

void PreferencesDialog::layOut()
{
    auto* middle = new QHBoxLayout;
    middle->setSpacing(gap);
    middle->addWidget(_list);
    middle->addWidget(_pages, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(middle, 1);
    column->addSpacing(gap / 2);
    column->addWidget(_buttons);
}

void PreferencesDialog::showPage(PreferenceKey::Page page)
{
    _list->setCurrentRow(page);
}

void PreferencesDialog::setThemeOverridden(bool overridden)
{
    auto* page = static_cast<PreferencePage*>(_pages->widget(PreferenceKey::Appearance));
    page->setRemark(overridden ? tr("The theme given on the command line holds for this run.")
                               : QString());
}

void PreferencesDialog::accept()
{
    finishTyping();
    _edits.keep();
    QDialog::accept();
}

void PreferencesDialog::reject()
{
    finishTyping();
    _edits.revert();
    QDialog::reject();
}

void PreferencesDialog::finishTyping()
{
    // A text is entered when its field loses the focus, which must not come after the end.
    if (QWidget* field = focusWidget())
        field->clearFocus();
}

void PreferencesDialog::resetPage()
{
    currentPage()->resetToDefaults();
}

void PreferencesDialog::enableButtons()
{
    _reset->setEnabled(!currentPage()->isDefault());
}

PreferencePage* PreferencesDialog::currentPage() const
{
    return static_cast<PreferencePage*>(_pages->currentWidget());
}
