// SPDX-License-Identifier: MIT

#include "tests/documents/Documents.h"
#include "workbench/batch/CommandLine.h"

#include <QRegularExpression>
#include <QTest>

/// The options of the program, and what the help, the manual page and the guides say of them.
class tst_document_options : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void the_manual_page_has_every_option_and_no_other();
    void options_in_documents_are_options_of_the_program_data();
    void options_in_documents_are_options_of_the_program();
    void the_user_guide_has_every_option();

private:
    static QSet<QString> helpOptions();
    static void expectNone(const QSet<QString>& found);
    QSet<QString> manualOptions() const;

    const Documents _documents{QStringLiteral(SOURCES)};
};

void tst_document_options::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

QSet<QString> tst_document_options::helpOptions()
{
    const CommandLine::Outcome outcome =
        CommandLine::parse({QStringLiteral("subnode-workbench"), QStringLiteral("--help")});
    static const QRegularExpression listed(QStringLiteral("^  (?:-\\w, )?(--[a-z\\-]+)"),
                                           QRegularExpression::MultilineOption);
    QSet<QString> options;
    auto it = listed.globalMatch(outcome.text);
    while (it.hasNext())
        options += it.next().captured(1);
    return options;
}

/// In the manual page a long option is a flag that begins with a dash of its own.
QSet<QString> tst_document_options::manualOptions() const
{
    static const QRegularExpression item(QStringLiteral("^\\.It Fl (.*)$"),
                                         QRegularExpression::MultilineOption);
    static const QRegularExpression flag(QStringLiteral("(?<!\\S)-([a-z][a-z\\-]+)"));
    QSet<QString> options;
    auto items = item.globalMatch(_documents.text(QStringLiteral("docs/man/subnode-workbench.1")));
    while (items.hasNext()) {
        auto flags = flag.globalMatch(items.next().captured(1));
        while (flags.hasNext())
            options += QStringLiteral("--") + flags.next().captured(1);
    }
    return options;
}

void tst_document_options::expectNone(const QSet<QString>& found)
{
    QVERIFY2(found.isEmpty(), qPrintable(found.values().join(u' ')));
}

void tst_document_options::the_manual_page_has_every_option_and_no_other()
{
    QVERIFY(helpOptions().contains(QStringLiteral("--screenshot")));
    expectNone(manualOptions() - helpOptions());
    expectNone(helpOptions() - manualOptions());
}

void tst_document_options::options_in_documents_are_options_of_the_program_data()
{
    QTest::addColumn<QString>("file");
    for (const QString& file : _documents.files())
        QTest::newRow(qPrintable(file)) << file;
}

void tst_document_options::options_in_documents_are_options_of_the_program()
{
    QFETCH(const QString, file);
    // Code spans of the contributors' guide are about other programs, too.
    if (file == QLatin1String("CONTRIBUTING.md"))
        return;
    const QSet<QString> examples = {QStringLiteral("--screenshot")};
    const QSet<QString> known =
        file.startsWith(QLatin1String("examples/")) ? examples : helpOptions();
    expectNone(_documents.workbenchOptions(file) - known);
}

void tst_document_options::the_user_guide_has_every_option()
{
    expectNone(helpOptions() - _documents.workbenchOptions(QStringLiteral("docs/user-guide.md")));
}

QTEST_GUILESS_MAIN(tst_document_options)
#include "tst_document_options.moc"
