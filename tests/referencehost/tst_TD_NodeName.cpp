// SPDX-License-Identifier: MIT
#include "host/models/TD_NodeName.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <QRegularExpression>
#include <QTest>

class tst_TD_NodeName : public QObject
{
    Q_OBJECT

private:
    static QString nameOf(const char* bytes)
    {
        const osg::NodeRefPtr node(osg::makeCoredNode<osg::Group>());
        osg::setName(node.get(), bytes);
        return TD_nodeName(node);
    }

private slots:
    void initTestCase() { QVERIFY(osg::osgInit(0, nullptr)); }
    void init() { QTest::failOnWarning(QRegularExpression(".?")); }

    void is_empty_for_no_node_no_name_and_an_empty_name()
    {
        QVERIFY(TD_nodeName(osg::NullFC).isEmpty());
        QVERIFY(nameOf(nullptr).isEmpty());
        QVERIFY(nameOf("").isEmpty());
    }

    void is_the_name_of_the_node_and_not_of_its_core()
    {
        osg::GroupPtr core;
        const osg::NodeRefPtr node(osg::makeCoredNode<osg::Group>(&core));
        osg::setName(core, "core");
        QVERIFY(TD_nodeName(node).isEmpty());
    }

    void reads_bytes_as_text_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("ASCII") << QByteArray("Upper_arm.L 1") << "Upper_arm.L 1";
        QTest::newRow("the last of ASCII") << QByteArray("\x01\x7f") << "\u0001\u007f";
        QTest::newRow("two bytes") << QByteArray("\xc3\x84rmel") << QStringLiteral(u"Ärmel");
        QTest::newRow("three bytes") << QByteArray("\xe8\x85\x95") << QStringLiteral(u"腕");
        QTest::newRow("four bytes") << QByteArray("\xf0\x9f\xa6\xbe") << QStringLiteral(u"🦾");
        QTest::newRow("Latin-1") << QByteArray("\xc4rmel") << QStringLiteral(u"Ärmel");
        QTest::newRow("both, so all Latin-1")
            << QByteArray("\xc3\xa4\xe4") << QStringLiteral(u"Ã¤ä");
        QTest::newRow("cut off") << QByteArray("a\xc3") << QStringLiteral(u"aÃ");
        QTest::newRow("cut off after two") << QByteArray("\xe8\x85") << QStringLiteral(u"è\u0085");
        QTest::newRow("overlong") << QByteArray("\xc0\xaf") << QStringLiteral(u"À¯");
        QTest::newRow("surrogate")
            << QByteArray("\xed\xa0\x80") << QStringLiteral(u"í\u00a0\u0080");
        QTest::newRow("beyond Unicode")
            << QByteArray("\xf4\x90\x80\x80") << QStringLiteral(u"ô\u0090\u0080\u0080");
        QTest::newRow("lone continuation") << QByteArray("\x80") << QStringLiteral(u"\u0080");
        QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf"
                                                       "a")
                                         << QStringLiteral(u"\ufeffa");
        QTest::newRow("replacement character, spelled out")
            << QByteArray("\xef\xbf\xbd") << QStringLiteral(u"\ufffd");
    }
    void reads_bytes_as_text()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        QCOMPARE(nameOf(bytes.constData()), text);
    }

    void reads_long_names_whole()
    {
        const QByteArray ascii(10000, 'x');
        QCOMPARE(nameOf(ascii.constData()), QString::fromLatin1(ascii));
        QCOMPARE(nameOf((ascii + "\xc3\xa4").constData()),
                 QString::fromLatin1(ascii) + QStringLiteral(u"ä"));
        QCOMPARE(nameOf((ascii + "\xe4").constData()),
                 QString::fromLatin1(ascii) + QStringLiteral(u"ä"));
    }

    void does_not_depend_on_the_name_after_it_was_read()
    {
        const osg::NodeRefPtr node(osg::makeCoredNode<osg::Group>());
        osg::setName(node.get(), "before");
        const QString name = TD_nodeName(node);
        osg::setName(node.get(), "afterwards");
        QCOMPARE(name, QStringLiteral("before"));
    }
};

QTEST_GUILESS_MAIN(tst_TD_NodeName)
#include "tst_TD_NodeName.moc"
