// SPDX-License-Identifier: MIT
#pragma once

#include "host/preferences/PR_Preference.h"
#include "workbench/preferences/PreferenceKey.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

/// What tests of preferences have in common: an empty store of their own, and keys by name.
class PreferencesTest : public QObject
{
protected:
    /// To be called before anything asks for preferences.
    void useOwnStore()
    {
        QVERIFY(_folder.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, _folder.path());
        QCoreApplication::setOrganizationName(QStringLiteral("preferences-test"));
        QCoreApplication::setApplicationName(QStringLiteral("preferences-test"));
    }
    static void startEmpty()
    {
        // Off screen, windows and popups are remarked upon; anything else is a failure.
        QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support ).")));
        for (const PreferenceKey& each : PreferenceKey::all())
            PR_Preference::instance()->reset(each.key);
        QSettings().clear();
    }

    static PreferenceKey key(const char* name)
    {
        const std::vector<PreferenceKey> keys = PreferenceKey::all();
        return *std::ranges::find(keys, QString::fromLatin1(name), &PreferenceKey::key);
    }
    static QStringList storedKeys() { return QSettings().allKeys(); }

    /// A row for each key of the table.
    static void addRowForEachKey()
    {
        QTest::addColumn<QString>("name");
        for (const PreferenceKey& each : PreferenceKey::all())
            QTest::newRow(qPrintable(each.key)) << each.key;
    }
    /// A value that the key can have and that is not its default.
    static QVariant otherValue(const PreferenceKey& key)
    {
        switch (key.kind) {
        case PreferenceKey::Colour:
            return 0x40102030U;
        case PreferenceKey::Font:
            return QStringLiteral("DejaVu Serif");
        case PreferenceKey::Choice:
            return (key.defaultValue.toInt() + 1) % int(key.choices.size());
        case PreferenceKey::Switch:
            return !key.defaultValue.toBool();
        case PreferenceKey::Integer:
            return key.defaultValue.toInt() + 7;
        }
        return {};
    }

private:
    QTemporaryDir _folder;
};
