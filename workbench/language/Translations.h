// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>
#include <array>

/// What the programs say, in the user's language. Their own texts, the library's and Qt's are all
/// in one language, for half a translation is worse than none: without one of the programs
/// themselves, everything is English. Holds while it lives.
class Translations
{
public:
    /// Needs an application object. The locale's languages are tried in their order; texts that
    /// were asked for before stay as they are.
    explicit Translations(const QLocale& locale = userLocale());
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// What the environment asks messages to be in: LC_ALL, LC_MESSAGES or LANG, with the choices
    /// of LANGUAGE before.
    static QLocale userLocale();

    /// Such as "fr"; "en" where nothing is translated.
    QString language() const { return _language; }

private:
    QString _language = QStringLiteral("en");
    std::array<QTranslator, 3> _translators;
};
