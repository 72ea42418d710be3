// SPDX-License-Identifier: MIT

#include "tests/documents/Documents.h"

#include <QRegularExpression>
#include <QTest>

/// The names of actions that the guide and the manual page list, and those that are defined.
class tst_document_actions : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void the_user_guide_lists_every_action_and_no_other();
    void the_manual_page_lists_every_action_and_no_other();

private:
    /// What the pattern's group finds, whatever stands in parentheses behind it.
    static QSet<QString> names(const QString& text, const char* pattern);
    void compare(const QSet<QString>& told) const;

    const Documents _documents{QStringLiteral(SOURCES)};
};

void tst_document_actions::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

QSet<QString> tst_document_actions::names(const QString& text, const char* pattern)
{
    const QRegularExpression expression(QLatin1String(pattern),
                                        QRegularExpression::MultilineOption);
    QSet<QString> found;
    auto it = expression.globalMatch(text);
    while (it.hasNext())
        found += it.next().captured(1);
    return found;
}

void tst_document_actions::compare(const QSet<QString>& told) const
{
    const QSet<QString> defined = names(
        _documents.text(QStringLiteral("workbench/resources/actions.xml")), "\\sslot=\"(\\w+)\"");
    QVERIFY(defined.contains(QStringLiteral("onActionHideNodes")));
    QCOMPARE((defined - told).values(), QStringList());
    QCOMPARE((told - defined).values(), QStringList());
}

void tst_document_actions::the_user_guide_lists_every_action_and_no_other()
{
    const QStringList table = _documents.section(QStringLiteral("docs/user-guide.md"),
                                                 QStringLiteral("Names of actions"));
    compare(names(table.join(u'\n'), "^\\| `(\\w+)(?:\\(N\\))?` \\|"));
}

void tst_document_actions::the_manual_page_lists_every_action_and_no_other()
{
    compare(names(_documents.text(QStringLiteral("docs/man/subnode-workbench.1")),
                  "^\\.It Cm (\\w+)(?:\\(N\\))?$"));
}

QTEST_GUILESS_MAIN(tst_document_actions)
#include "tst_document_actions.moc"
