// SPDX-License-Identifier: MIT

#include "workbench/preferences/ThemeSwitch.h"

#include "host/preferences/PR_Preference.h"
#include "workbench/preferences/PreferenceKey.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleFactory>

namespace {

/// The style that takes every palette as it is.
QString ownStyle()
{
    return QStringLiteral("fusion");
}

/// A style that cannot be made leaves the one that is there.
void setStyle(const QString& name)
{
    if (QStyle* style = QStyleFactory::create(name))
        QApplication::setStyle(style);
}

} // namespace

ThemeSwitch::ThemeSwitch(std::optional<Choice> given, QObject* parent)
    : QObject(parent)
    , _given(given)
    , _desktopStyle(QApplication::style()->name())
{
    qApp->installEventFilter(this);
    connect(PR_Preference::instance(), &PR_Preference::preferenceChanged, this,
            &ThemeSwitch::follow);
    follow();
}

ThemeSwitch::~ThemeSwitch()
{
    _applying = true;
    showDesktopLook();
    qApp->setStyleSheet(QString());
}

std::optional<ThemeSwitch::Choice> ThemeSwitch::fromName(const QString& name)
{
    if (name == QLatin1String("system"))
        return System;
    if (name == QLatin1String("light"))
        return Light;
    if (name == QLatin1String("dark"))
        return Dark;
    return std::nullopt;
}

ThemeSwitch::Choice ThemeSwitch::choice() const
{
    if (_given)
        return *_given;
    switch (PR_Preference::instance()->getEnum(PreferenceKey::themeKey(), System)) {
    case Light:
        return Light;
    case Dark:
        return Dark;
    default:
        return System;
    }
}

bool ThemeSwitch::eventFilter(QObject* watched, QEvent* event)
{
    // Every event of the application comes by here.
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp && !_applying)
        apply(choice());
    return false;
}

void ThemeSwitch::follow()
{
    if (choice() != _applied)
        apply(choice());
}

void ThemeSwitch::apply(Choice choice)
{
    const QScopedValueRollback guard(_applying, true);
    // Only without a look of its own does the application tell what the desktop's is like.
    if (choice != _applied)
        showDesktopLook();
    _applied = choice;
    const Theme::Kind desktop = Theme::kindOf(QApplication::palette());
    const Theme::Kind wanted = choice == System ? desktop
                               : choice == Dark ? Theme::Dark
                                                : Theme::Light;
    if (wanted != desktop)
        showOwnLook(wanted);
    showStyleSheet(wanted);
    if (_kind == wanted)
        return;
    _kind = wanted;
    emit kindChanged();
}

void ThemeSwitch::showDesktopLook()
{
    if (!_hasOwnLook)
        return;
    _hasOwnLook = false;
    if (_desktopStyle != ownStyle())
        setStyle(_desktopStyle);
    // A palette that says nothing leaves everything to the desktop's.
    QApplication::setPalette(QPalette());
}

void ThemeSwitch::showOwnLook(Theme::Kind kind)
{
    _hasOwnLook = true;
    if (_desktopStyle != ownStyle())
        setStyle(ownStyle());
    QApplication::setPalette(Theme::palette(kind));
}

void ThemeSwitch::showStyleSheet(Theme::Kind kind)
{
    // To set a sheet again costs as much as to set another.
    const QString sheet = Theme::styleSheet(kind);
    if (qApp->styleSheet() != sheet)
        qApp->setStyleSheet(sheet);
}
