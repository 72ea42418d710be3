// SPDX-License-Identifier: MIT

#include "workbench/language/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace {

QString folder()
{
    return QStringLiteral(":/i18n");
}

QString file(const char* part, const QString& language)
{
    return QLatin1String(part) + QLatin1Char('_') + language;
}

/// Loads the first language that there is. False when none is, or when English comes before it,
/// which needs no translation.
bool loadFirst(QTranslator& translator, const QStringList& languages)
{
    for (const QString& language : languages) {
        const QLocale locale(language);
        if (locale.language() == QLocale::English)
            return false;
        if (translator.load(file("workbench", locale.name()), folder()))
            return true;
    }
    return false;
}

} // namespace

Translations::Translations(const QLocale& locale)
{
    auto& [workbench, library, qt] = _translators;
    if (!loadFirst(workbench, locale.uiLanguages()))
        return;
    _language = workbench.language();
    QCoreApplication::installTranslator(&workbench);
    if (library.load(file("subnodeviews", _language), folder()))
        QCoreApplication::installTranslator(&library);
    // Qt's translations are a package of their own, which need not be there.
    if (qt.load(file("qtbase", _language), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qt);
}

Translations::~Translations()
{
    for (QTranslator& translator : _translators)
        QCoreApplication::removeTranslator(&translator);
}

QLocale Translations::userLocale()
{
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QByteArray value = qgetenv(name);
        if (value.isEmpty())
            continue;
        // Scripts ask for this locale to get what they can rely on. LANGUAGE, which Qt looks at
        // all the same, does not count then.
        if (value == "C" || value.startsWith("C.") || value == "POSIX")
            return QLocale::c();
        break;
    }
    return QLocale::system();
}
