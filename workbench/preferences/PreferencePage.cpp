// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferencePage.h"

#include "workbench/preferences/PreferenceField.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int columnGap = 12;
constexpr int rowGap = 6;

} // namespace

PreferencePage::PreferencePage(PreferenceKey::Page page, PreferenceEdits& edits, QWidget* parent)
    : QWidget(parent)
    , _remark(new QLabel(this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(columnGap);
    rows->setVerticalSpacing(rowGap);
    column->addLayout(rows);
    for (const PreferenceKey& key : PreferenceKey::ofPage(page))
        _fields.push_back(new PreferenceField(key, edits, *rows, *this));
    column->addWidget(_remark);
    _remark->hide();
    column->addStretch();
}

QString PreferencePage::title(PreferenceKey::Page page)
{
    switch (page) {
    case PreferenceKey::GraphViewColours:
        return tr("Graph View Colours");
    case PreferenceKey::GraphView:
        return tr("Graph View");
    case PreferenceKey::Appearance:
        return tr("Appearance");
    }
    return {};
}

bool PreferencePage::isDefault() const
{
    return std::ranges::all_of(_fields, &PreferenceField::isDefault);
}

void PreferencePage::resetToDefaults()
{
    for (PreferenceField* field : _fields)
        field->resetToDefault();
}

void PreferencePage::setRemark(const QString& text)
{
    _remark->setText(text);
    _remark->setHidden(text.isEmpty());
}
