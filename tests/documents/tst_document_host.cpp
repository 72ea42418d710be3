// SPDX-License-Identifier: MIT

#include "tests/documents/Documents.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

/// What the host guide says that a host has to have, and what the library leaves open.
class tst_document_host : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void every_class_that_the_library_leaves_open_is_in_the_table();

private:
    const Documents _documents{QStringLiteral(SOURCES)};
};

void tst_document_host::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void tst_document_host::every_class_that_the_library_leaves_open_is_in_the_table()
{
    QProcess nm;
    nm.start(QStringLiteral(NM),
             {QStringLiteral("-DC"), QStringLiteral("--undefined-only"), QStringLiteral(LIBRARY)});
    QVERIFY(nm.waitForFinished());
    QCOMPARE(nm.exitCode(), 0);

    const QString table =
        _documents
            .section(QStringLiteral("docs/host-guide.md"), QStringLiteral("What the library calls"))
            .join(u'\n');
    // A name at the beginning is the class, or the function, that is called.
    static const QRegularExpression symbol(
        QStringLiteral("^ *U (?:(?:typeinfo|vtable|non-virtual thunk) (?:for|to) )?"
                       "((?:(?:AC|AT|BUIAPP|CO|MO|PLUG|PR|SC|SL|SLB|TD|UT|WID)_|TU|tu_)\\w+)"),
        QRegularExpression::MultilineOption);
    QSet<QString> open;
    auto it = symbol.globalMatch(QString::fromUtf8(nm.readAllStandardOutput()));
    while (it.hasNext())
        open += it.next().captured(1);
    QVERIFY(open.contains(QStringLiteral("SC_SessionContext")));

    QStringList untold;
    for (const QString& name : open) {
        if (!table.contains(QRegularExpression(QStringLiteral("`%1\\b").arg(name))))
            untold += name;
    }
    QVERIFY2(untold.isEmpty(), qPrintable(untold.join(u' ')));
}

QTEST_GUILESS_MAIN(tst_document_host)
#include "tst_document_host.moc"
