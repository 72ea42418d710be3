// SPDX-License-Identifier: MIT

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <vector>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    /// Empty for one that is finished.
    QString state;
};

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList languageFiles()
{
    return QDir(QStringLiteral(TRANSLATIONS)).entryList({QStringLiteral("*.ts")}, QDir::Files);
}

std::vector<Message> messagesOf(const QString& file)
{
    QDomDocument document;
    document.setContent(contentOf(QStringLiteral(TRANSLATIONS "/") + file));
    std::vector<Message> messages;
    const QDomNodeList elements = document.elementsByTagName(QStringLiteral("message"));
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement message = elements.at(i).toElement();
        const QDomElement translation = message.firstChildElement(QStringLiteral("translation"));
        messages.push_back({message.parentNode().firstChildElement(QStringLiteral("name")).text(),
                            message.firstChildElement(QStringLiteral("source")).text(),
                            translation.text(), translation.attribute(QStringLiteral("type"))});
    }
    return messages;
}

QStringList found(const QString& text, const QString& pattern)
{
    QStringList all;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext())
        all += matches.next().captured();
    all.sort();
    return all;
}

QString edgeSpace(const QString& text)
{
    return found(text, QStringLiteral("^ +| +$")).join(u'|');
}

} // namespace

/// What translators must keep, in every language.
class tst_translation_files : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void nothing_is_left_to_translate_data();
    void nothing_is_left_to_translate();
    void translations_keep_what_the_program_puts_in_or_reads_data();
    void translations_keep_what_the_program_puts_in_or_reads();
    void texts_do_without_plural_forms_data();
    void texts_do_without_plural_forms();
    void french_signs_stand_apart_by_narrow_spaces();
    void the_files_are_up_to_date_with_the_sources();
};

void tst_translation_files::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

static void addFiles()
{
    QTest::addColumn<QString>("file");
    for (const QString& file : languageFiles())
        QTest::newRow(qPrintable(file)) << file;
}

void tst_translation_files::nothing_is_left_to_translate_data()
{
    addFiles();
}

void tst_translation_files::nothing_is_left_to_translate()
{
    QFETCH(QString, file);
    const std::vector<Message> messages = messagesOf(file);
    QVERIFY(!messages.empty());
    for (const Message& message : messages) {
        const QByteArray where = (message.context + u' ' + message.source).toUtf8();
        QVERIFY2(!message.context.isEmpty(), where);
        QVERIFY2(message.state.isEmpty(), where);
        QVERIFY2(!message.translation.isEmpty(), where);
    }
}

void tst_translation_files::translations_keep_what_the_program_puts_in_or_reads_data()
{
    addFiles();
}

void tst_translation_files::translations_keep_what_the_program_puts_in_or_reads()
{
    QFETCH(QString, file);
    for (const Message& message : messagesOf(file)) {
        // Values, keys of menus, markup, ends of entries that open dialogs, filters of files.
        for (const char* pattern :
             {"%[n0-9L]", "&(?!&)", "</?[a-z][^>]*>", "\\.\\.\\.", ";;", "\\[\\*\\]", "--[a-z%]"}) {
            const QString kept = QString::fromLatin1(pattern);
            QCOMPARE(found(message.translation, kept), found(message.source, kept));
        }
        QCOMPARE(edgeSpace(message.translation), edgeSpace(message.source));
    }
}

void tst_translation_files::texts_do_without_plural_forms_data()
{
    addFiles();
}

/// English is not translated, and so has no plural forms to choose from.
void tst_translation_files::texts_do_without_plural_forms()
{
    QFETCH(QString, file);
    for (const Message& message : messagesOf(file))
        QVERIFY2(!message.source.contains(QLatin1String("%n")), qUtf8Printable(message.source));
}

void tst_translation_files::french_signs_stand_apart_by_narrow_spaces()
{
    int files = 0;
    for (const QString& file : languageFiles()) {
        if (!file.endsWith(QLatin1String("_fr.ts")))
            continue;
        ++files;
        for (const Message& message : messagesOf(file)) {
            QString text = message.translation;
            text.remove(QRegularExpression(QStringLiteral("<[^>]*>|;;")));
            static const QRegularExpression wrong(
                QStringLiteral("[^\u202f][:;!?\u00bb]|\u00ab[^\u202f]|[\"']"));
            QVERIFY2(!text.contains(wrong), qUtf8Printable(text));
        }
    }
    QCOMPARE(files, 2);
}

void tst_translation_files::the_files_are_up_to_date_with_the_sources()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    for (const QString& file : languageFiles())
        QVERIFY(QFile::copy(QStringLiteral(TRANSLATIONS "/") + file, folder.filePath(file)));

    QProcess update;
    update.start(QStringLiteral(TRANSLATIONS "/update.sh"), {folder.path()});
    QVERIFY(update.waitForFinished());
    QCOMPARE(update.readAllStandardError(), QByteArray());
    QCOMPARE(update.exitCode(), 0);
    for (const QString& file : languageFiles()) {
        const QByteArray updated = contentOf(folder.filePath(file));
        QVERIFY(!updated.isEmpty());
        QCOMPARE(updated, contentOf(QStringLiteral(TRANSLATIONS "/") + file));
    }
}

QTEST_GUILESS_MAIN(tst_translation_files)
#include "tst_translation_files.moc"
