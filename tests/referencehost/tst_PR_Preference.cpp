// SPDX-License-Identifier: MIT
#include "host/preferences/PR_Preference.h"

#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

class tst_PR_Preference : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir _folder;
    PR_Preference* _preference = nullptr;
    const QString _key = QStringLiteral("KEY");

    static void store(const QString& key, const QVariant& value)
    {
        QSettings().setValue(key, value);
    }
    /// The settings file as it stands, for a user to read.
    static QString fileText()
    {
        QSettings settings;
        settings.sync();
        QFile file(settings.fileName());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    /// Makes the next reading come from a file with this line.
    static void writeFile(const QString& line)
    {
        QSettings settings;
        settings.sync();
        QFile file(settings.fileName());
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("[General]\n" + line.toUtf8() + '\n');
        file.close();
        settings.sync();
    }

private slots:
    void initTestCase()
    {
        QVERIFY(_folder.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, _folder.path());
        QCoreApplication::setOrganizationName(QStringLiteral("preference-test"));
        QCoreApplication::setApplicationName(QStringLiteral("preference-test"));
        _preference = PR_Preference::instance();
    }
    void init()
    {
        QTest::failOnWarning(QRegularExpression(".?"));
        QSettings().clear();
    }

    void is_one_store_for_the_process()
    {
        QVERIFY(_preference);
        QCOMPARE(PR_Preference::instance(), _preference);
    }

    void reads_defaults_for_keys_that_were_never_set()
    {
        QCOMPARE(_preference->getBoolValue(_key, true), true);
        QCOMPARE(_preference->getBoolValue(_key, false), false);
        QCOMPARE(_preference->getIntValue(_key, -5), -5);
        QCOMPARE(_preference->getEnum(_key), 0);
        QCOMPARE(_preference->getEnum(_key, 2), 2);
        QCOMPARE(_preference->getRgbaValue(_key, 0x80ff0010u), 0x80ff0010u);
        QCOMPARE(_preference->getFontValue(_key, "Courier"), QStringLiteral("Courier"));
    }

    void reads_back_what_was_set()
    {
        _preference->setBoolValue("BOOL", true);
        _preference->setIntValue("INT", std::numeric_limits<int>::min());
        _preference->setEnum("ENUM", 3);
        _preference->setRgbaValue("RGBA", 0xfedcba98u);
        _preference->setFontValue("FONT", "DejaVu Sans, Mono");
        for (int pass = 0; pass < 2; ++pass) {
            QCOMPARE(_preference->getBoolValue("BOOL", false), true);
            QCOMPARE(_preference->getIntValue("INT", 0), std::numeric_limits<int>::min());
            QCOMPARE(_preference->getEnum("ENUM", 0), 3);
            QCOMPARE(_preference->getRgbaValue("RGBA", 0), 0xfedcba98u);
            QCOMPARE(_preference->getFontValue("FONT", ""), QStringLiteral("DejaVu Sans, Mono"));
            // The second pass reads the text in the file, where types are lost.
            const QString text = fileText();
            QSettings().clear();
            writeFile(text.section(u'\n', 1));
        }
    }

    void keeps_values_in_a_file_that_people_can_read()
    {
        _preference->setBoolValue("SHOW", true);
        _preference->setRgbaValue("COLOUR", 0x0a0b0c0du);
        _preference->setIntValue("SIZE", 12);
        const QString text = fileText();
        QVERIFY(text.contains(QLatin1String("SHOW=true\n")));
        QVERIFY(text.contains(QLatin1String("COLOUR=#0a0b0c0d\n")));
        QVERIFY(text.contains(QLatin1String("SIZE=12\n")));
    }

    void reads_stored_values_of_another_kind_as_the_default_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("asBool");
        QTest::addColumn<QVariant>("asInt");
        QTest::addColumn<QVariant>("asRgba");
        QTest::addColumn<QVariant>("asFont");
        const QVariant none;
        const auto row = [](const char* name, const QVariant& stored, const QVariant& asBool,
                            const QVariant& asInt, const QVariant& asRgba, const QVariant& asFont) {
            QTest::newRow(name) << stored << asBool << asInt << asRgba << asFont;
        };
        row("a boolean", true, true, none, none, none);
        row("true as text", "true", true, none, none, "true");
        row("false as text", "false", false, none, none, "false");
        row("another spelling", "TRUE", none, none, none, "TRUE");
        row("a number", 1, none, 1, 1u, none);
        row("a number as text", "255", none, 255, 255u, "255");
        row("a negative number", -1, none, -1, none, none);
        row("a fraction", 1.5, none, none, none, none);
        row("a fraction as text", "1.5", none, none, none, "1.5");
        row("too large for an integer", "4294901760", none, none, 4294901760u, "4294901760");
        row("too large for a colour", "4294967296", none, none, none, "4294967296");
        row("a colour", "#ff112233", none, none, 0xff112233u, "#ff112233");
        row("a colour in capitals", "#FFAABBCC", none, none, 0xffaabbccu, "#FFAABBCC");
        row("a colour without alpha", "#112233", none, none, none, "#112233");
        row("a colour that is too long", "#ff1122334", none, none, none, "#ff1122334");
        row("a colour with a sign", "#+f112233", none, none, none, "#+f112233");
        row("a colour with nonsense", "#gg112233", none, none, none, "#gg112233");
        row("nothing", "", none, none, none, none);
        row("a list", QStringList({"1", "2"}), none, none, none, none);
        row("bytes", QByteArray("\x01\x02"), none, none, none, none);
    }
    void reads_stored_values_of_another_kind_as_the_default()
    {
        QFETCH(QVariant, stored);
        QFETCH(QVariant, asBool);
        QFETCH(QVariant, asInt);
        QFETCH(QVariant, asRgba);
        QFETCH(QVariant, asFont);
        store(_key, stored);
        for (const bool otherwise : {true, false}) {
            const bool expected = asBool.isValid() ? asBool.toBool() : otherwise;
            QCOMPARE(_preference->getBoolValue(_key, otherwise), expected);
        }
        QCOMPARE(_preference->getIntValue(_key, 77), asInt.isValid() ? asInt.toInt() : 77);
        QCOMPARE(_preference->getEnum(_key, 77), asInt.isValid() ? asInt.toInt() : 77);
        QCOMPARE(_preference->getRgbaValue(_key, 77u), asRgba.isValid() ? asRgba.toUInt() : 77u);
        QCOMPARE(_preference->getFontValue(_key, "default"),
                 asFont.isValid() ? asFont.toString() : QStringLiteral("default"));
    }

    void reads_a_damaged_file_as_defaults()
    {
        writeFile(QStringLiteral("KEY=@Variant(nonsense"));
        QCOMPARE(_preference->getBoolValue(_key, true), true);
        QCOMPARE(_preference->getIntValue(_key, 7), 7);
        QCOMPARE(_preference->getRgbaValue(_key, 7u), 7u);
    }

    void tells_once_for_each_value_that_differs()
    {
        const QSignalSpy spy(_preference, &PR_Preference::preferenceChanged);
        const auto changes = [&](auto set) {
            const qsizetype before = spy.count();
            set();
            return spy.count() - before;
        };
        for (const int expected : {1, 0}) {
            QCOMPARE(changes([&] { _preference->setBoolValue("BOOL", false); }), expected);
            QCOMPARE(changes([&] { _preference->setIntValue("INT", 0); }), expected);
            QCOMPARE(changes([&] { _preference->setEnum("ENUM", 0); }), expected);
            QCOMPARE(changes([&] { _preference->setRgbaValue("RGBA", 0); }), expected);
            QCOMPARE(changes([&] { _preference->setFontValue("FONT", "Courier"); }), expected);
        }
        QCOMPARE(changes([&] { _preference->setBoolValue("BOOL", true); }), 1);
        QCOMPARE(changes([&] { _preference->setIntValue("INT", 1); }), 1);
        QCOMPARE(changes([&] { _preference->setRgbaValue("RGBA", 1); }), 1);
        QCOMPARE(changes([&] { _preference->setFontValue("FONT", "Serif"); }), 1);
    }

    void takes_the_same_value_in_another_spelling_as_the_same()
    {
        store("BOOL", "true");
        store("RGBA", 0xff000000u);
        const QSignalSpy spy(_preference, &PR_Preference::preferenceChanged);
        _preference->setBoolValue("BOOL", true);
        _preference->setRgbaValue("RGBA", 0xff000000u);
        QCOMPARE(spy.count(), 0);
    }

    void replaces_nonsense_and_tells()
    {
        store(_key, "nonsense");
        const QSignalSpy spy(_preference, &PR_Preference::preferenceChanged);
        _preference->setIntValue(_key, 3);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(_preference->getIntValue(_key, 0), 3);
    }

    void has_the_new_value_when_it_tells()
    {
        QObject listener;
        int seen = 0;
        connect(_preference, &PR_Preference::preferenceChanged, &listener,
                [&] { seen = _preference->getIntValue(_key, 0); });
        _preference->setIntValue(_key, 9);
        QCOMPARE(seen, 9);
    }

    void forgets_a_key_and_tells_if_it_was_set()
    {
        _preference->setIntValue(_key, 3);
        const QSignalSpy spy(_preference, &PR_Preference::preferenceChanged);
        _preference->reset(_key);
        QCOMPARE(_preference->getIntValue(_key, 8), 8);
        QCOMPARE(spy.count(), 1);
        _preference->reset(_key);
        QCOMPARE(spy.count(), 1);
    }

    void takes_an_empty_font_as_none()
    {
        const QSignalSpy spy(_preference, &PR_Preference::preferenceChanged);
        _preference->setFontValue(_key, QString());
        QCOMPARE(spy.count(), 0);
        _preference->setFontValue(_key, "Serif");
        _preference->setFontValue(_key, QString());
        QCOMPARE(spy.count(), 2);
        QCOMPARE(_preference->getFontValue(_key, "default"), QStringLiteral("default"));
    }
};

QTEST_GUILESS_MAIN(tst_PR_Preference)
#include "tst_PR_Preference.moc"
