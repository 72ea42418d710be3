// SPDX-License-Identifier: MIT
#include "workbench/modelstream/OneLine.h"

#include <QTest>

class tst_one_line : public QObject
{
    Q_OBJECT

private slots:
    void what_cannot_be_printed_becomes_a_space()
    {
        QCOMPARE(oneLine(QStringLiteral("a\nb\tc\x1b"
                                        "d")),
                 QStringLiteral("a b c d"));
        QCOMPARE(oneLine(QString(QChar(0x2028))), QStringLiteral(" "));
    }

    void letters_of_all_scripts_stay()
    {
        const QString text = QStringLiteral("Würfel 日本語 \U0001F916");
        QCOMPARE(oneLine(text), text);
    }

    void a_long_text_is_cut()
    {
        QCOMPARE(shortLine(QStringLiteral("abcdef"), 6), QStringLiteral("abcdef"));
        QCOMPARE(shortLine(QStringLiteral("abcdefg"), 6), QStringLiteral("abcde…"));
    }

    void runs_of_spaces_become_one()
    {
        QCOMPARE(shortLine(QStringLiteral(" a \r\n  b "), 10), QStringLiteral("a b"));
    }
};

QTEST_APPLESS_MAIN(tst_one_line)
#include "tst_one_line.moc"
