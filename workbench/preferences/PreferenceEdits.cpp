// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferenceEdits.h"

#include "host/preferences/PR_Preference.h"

#include <algorithm>
#include <utility>

namespace {

QVariant read(const PreferenceKey& key, const QVariant& fallback)
{
    const PR_Preference* preferences = PR_Preference::instance();
    switch (key.kind) {
    case PreferenceKey::Colour:
        return preferences->getRgbaValue(key.key, fallback.toUInt());
    case PreferenceKey::Font:
        return preferences->getFontValue(key.key, fallback.toString());
    case PreferenceKey::Choice:
        return preferences->getEnum(key.key, fallback.toInt());
    case PreferenceKey::Switch:
        return preferences->getBoolValue(key.key, fallback.toBool());
    case PreferenceKey::Integer:
        return preferences->getIntValue(key.key, fallback.toInt());
    }
    return {};
}

void write(const PreferenceKey& key, const QVariant& value)
{
    PR_Preference* preferences = PR_Preference::instance();
    if (!value.isValid())
        return preferences->reset(key.key);
    switch (key.kind) {
    case PreferenceKey::Colour:
        return preferences->setRgbaValue(key.key, value.toUInt());
    case PreferenceKey::Font:
        return preferences->setFontValue(key.key, value.toString());
    case PreferenceKey::Choice:
        return preferences->setEnum(key.key, value.toInt());
    case PreferenceKey::Switch:
        return preferences->setBoolValue(key.key, value.toBool());
    case PreferenceKey::Integer:
        return preferences->setIntValue(key.key, value.toInt());
    }
}

/// Two values of the kind that differ.
std::pair<QVariant, QVariant> probes(PreferenceKey::Kind kind)
{
    switch (kind) {
    case PreferenceKey::Colour:
        return {0U, 1U};
    case PreferenceKey::Font:
        return {QStringLiteral("0"), QStringLiteral("1")};
    case PreferenceKey::Switch:
        return {false, true};
    case PreferenceKey::Choice:
    case PreferenceKey::Integer:
        break;
    }
    return {0, 1};
}

} // namespace

QVariant PreferenceEdits::value(const PreferenceKey& key)
{
    return read(key, key.defaultValue);
}

QVariant PreferenceEdits::stored(const PreferenceKey& key)
{
    // The host does not tell what is set, but a value that is does not depend on the fallback.
    const auto [one, other] = probes(key.kind);
    QVariant value = read(key, one);
    return value == read(key, other) ? value : QVariant();
}

bool PreferenceEdits::isDefault(const PreferenceKey& key)
{
    return value(key) == key.defaultValue;
}

void PreferenceEdits::set(const PreferenceKey& key, const QVariant& newValue)
{
    if (newValue == value(key))
        return;
    remember(key);
    write(key, newValue == key.defaultValue ? QVariant() : newValue);
    emit applied();
}

void PreferenceEdits::reset(const PreferenceKey& key)
{
    if (!stored(key).isValid())
        return;
    remember(key);
    write(key, {});
    emit applied();
}

void PreferenceEdits::keep()
{
    _before.clear();
}

void PreferenceEdits::revert()
{
    if (_before.empty())
        return;
    for (const Before& each : std::exchange(_before, {}))
        write(each.key, each.stored);
    emit applied();
}

void PreferenceEdits::remember(const PreferenceKey& key)
{
    if (std::ranges::none_of(_before, [&](const Before& each) { return each.key.key == key.key; }))
        _before.push_back({key, stored(key)});
}
