// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferenceField.h"

#include "host/preferences/PR_Preference.h"
#include "workbench/preferences/PreferenceEdits.h"
#include "workbench/preferences/PreferenceIcons.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

namespace {

enum Column
{
    LabelColumn,
    ControlColumn,
    ResetColumn
};

constexpr qreal noteScale = 0.9;
constexpr int noteGap = 6;

/// The label as it is read out: without mnemonic and colon.
QString spokenName(const PreferenceKey& key)
{
    QString name = key.label;
    name.remove(u'&');
    if (name.endsWith(u':'))
        name.chop(1);
    // Some languages have a space before the colon.
    return name.trimmed();
}

} // namespace

PreferenceField::PreferenceField(const PreferenceKey& key, PreferenceEdits& edits,
                                 QGridLayout& layout, QWidget& page)
    : QObject(&page)
    , _key(key)
    , _edits(edits)
    , _control(PreferenceControl::create(
          key, &page, [this](const QVariant& value) { _edits.set(_key, value); }))
{
    const int row = layout.rowCount();
    _control.widget->setAccessibleName(spokenName(key));
    if (!key.note.isEmpty())
        _control.widget->setToolTip(key.note);
    addLabel(layout, page, row);
    layout.addWidget(_control.widget, row, ControlColumn);
    layout.setColumnStretch(ControlColumn, 1);
    addResetButton(layout, page, row);
    if (!key.note.isEmpty())
        addNote(layout, page, key.note);
    connect(PR_Preference::instance(), &PR_Preference::preferenceChanged, this,
            &PreferenceField::showStored);
    showStored();
}

void PreferenceField::addLabel(QGridLayout& layout, QWidget& page, int row)
{
    // A switch has its text beside it.
    if (_key.kind == PreferenceKey::Switch)
        return;
    auto* label = new QLabel(_key.label, &page);
    label->setBuddy(_control.widget);
    layout.addWidget(label, row, LabelColumn);
}

void PreferenceField::addResetButton(QGridLayout& layout, QWidget& page, int row)
{
    const QString text = tr("Reset %1 to its default").arg(spokenName(_key));
    _reset = new QToolButton(&page);
    _reset->setObjectName(_key.key + QStringLiteral("_RESET"));
    _reset->setIcon(PreferenceIcons::backToDefault());
    _reset->setAutoRaise(true);
    _reset->setFocusPolicy(Qt::StrongFocus);
    _reset->setToolTip(text);
    _reset->setAccessibleName(text);
    layout.addWidget(_reset, row, ResetColumn);
    connect(_reset, &QToolButton::clicked, this, &PreferenceField::resetToDefault);
}

void PreferenceField::addNote(QGridLayout& layout, QWidget& page, const QString& text)
{
    auto* note = new QLabel(text, &page);
    QFont font = note->font();
    font.setPointSizeF(font.pointSizeF() * noteScale);
    note->setFont(font);
    note->setContentsMargins(0, 0, 0, noteGap);
    layout.addWidget(note, layout.rowCount(), ControlColumn, 1, 2);
}

bool PreferenceField::isDefault() const
{
    return PreferenceEdits::isDefault(_key);
}

void PreferenceField::resetToDefault()
{
    // The button is about to be disabled, and the focus would go on to the next row.
    if (_reset->hasFocus())
        _control.widget->setFocus();
    _edits.reset(_key);
}

void PreferenceField::showStored()
{
    _control.show(PreferenceEdits::value(_key));
    _reset->setEnabled(!isDefault());
}
