// SPDX-License-Identifier: MIT
#include "host/preferences/PR_Preference.h"

#include "referencehost/preferences/PreferenceValue.h"

#include <QSettings>

namespace {

/// In which corner overviews of a canvas open: the bottom right, where they cover least.
constexpr int bottomRightCorner = 3;

int ownDefault(const QString& key)
{
    return key == QLatin1String("GV_WORLD_VIEW_STARTING_CORNER") ? bottomRightCorner : 0;
}

} // namespace

struct PR_Preference::Private
{
    QSettings settings;

    /// What is stored for the key, seen as one kind of value.
    template <class Value>
    std::optional<Value> read(const QString& key,
                              std::optional<Value> (*convert)(const QVariant&)) const
    {
        return convert(settings.value(key));
    }
};

PR_Preference* PR_Preference::instance()
{
    static PR_Preference preferences;
    return &preferences;
}

PR_Preference::PR_Preference()
    : d(std::make_unique<Private>())
{
}

PR_Preference::~PR_Preference() = default;

bool PR_Preference::getBoolValue(const QString& key, bool defaultValue) const
{
    return d->read(key, PreferenceValue::toBool).value_or(defaultValue);
}

int PR_Preference::getIntValue(const QString& key, int defaultValue) const
{
    return d->read(key, PreferenceValue::toInt).value_or(defaultValue);
}

int PR_Preference::getEnum(const QString& key) const
{
    return getEnum(key, ownDefault(key));
}

int PR_Preference::getEnum(const QString& key, int defaultValue) const
{
    return getIntValue(key, defaultValue);
}

unsigned int PR_Preference::getRgbaValue(const QString& key, unsigned int defaultValue) const
{
    return d->read(key, PreferenceValue::toRgba).value_or(defaultValue);
}

QString PR_Preference::getFontValue(const QString& key, const QString& defaultValue) const
{
    return d->read(key, PreferenceValue::toFont).value_or(defaultValue);
}

void PR_Preference::setBoolValue(const QString& key, bool value)
{
    if (d->read(key, PreferenceValue::toBool) == value)
        return;
    d->settings.setValue(key, value);
    emit preferenceChanged();
}

void PR_Preference::setIntValue(const QString& key, int value)
{
    if (d->read(key, PreferenceValue::toInt) == value)
        return;
    d->settings.setValue(key, value);
    emit preferenceChanged();
}

void PR_Preference::setEnum(const QString& key, int value)
{
    setIntValue(key, value);
}

void PR_Preference::setRgbaValue(const QString& key, unsigned int value)
{
    if (d->read(key, PreferenceValue::toRgba) == value)
        return;
    d->settings.setValue(key, PreferenceValue::fromRgba(value));
    emit preferenceChanged();
}

void PR_Preference::setFontValue(const QString& key, const QString& family)
{
    // Without a family the key reads as its default, as if it had never been set.
    if (family.isEmpty())
        return reset(key);
    if (d->read(key, PreferenceValue::toFont) == family)
        return;
    d->settings.setValue(key, family);
    emit preferenceChanged();
}

void PR_Preference::reset(const QString& key)
{
    if (!d->settings.contains(key))
        return;
    d->settings.remove(key);
    emit preferenceChanged();
}
