// SPDX-License-Identifier: MIT

#include "host/preferences/PR_Preference.h"
#include "tests/graphview/ModelBuilder.h"
#include "tests/graphview/ShownModels.h"

#include <QFontMetrics>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

using namespace ModelBuilder;

namespace {

constexpr int labelWidth = 124;

QFontMetrics metrics()
{
    return QFontMetrics(GV_GraphUiInfo::font());
}

/// The shortened name by the plain rule: measured as a whole, and elided when it is too wide.
QString plainDisplayName(const QString& name)
{
    if (metrics().boundingRect(name).width() <= labelWidth)
        return QString();
    return metrics().elidedText(name, Qt::ElideMiddle, labelWidth);
}

/// Text of the given characters, often with spaces at its ends.
QString randomText(QRandomGenerator& random, const QString& characters, int longest)
{
    QString text;
    for (int length = random.bounded(longest + 1); length > 0; --length)
        text.append(characters.at(random.bounded(characters.size())));
    const QString spaces(random.bounded(30), u' ');
    const int where = random.bounded(5);
    return (where == 0 || where == 2 ? spaces : QString()) + text +
           (where == 1 || where == 2 ? spaces : QString());
}

QString plainCharacters()
{
    QString characters;
    for (char16_t character = 0x20; character < 0x7f; ++character)
        characters.append(QChar(character));
    return characters;
}

} // namespace

class tst_GV_DisplayNames : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir _settings;
    std::unique_ptr<ShownModels> _models;
    MO_ElementModule* _robot = nullptr;

    void useFont(const QString& family)
    {
        PR_Preference::instance()->setFontValue(QStringLiteral("ST_3DNODEVIEW_FONT"), family);
        _models->graph.loadPreferences();
        QCOMPARE(GV_GraphUiInfo::font().family(), family);
    }

    /// The name as the graph shortens it for a header.
    QString displayName(const QString& name)
    {
        _robot->setInstanceName(name);
        _models->graph.updateHeaderNodesName({_models->header(0)});
        return _models->header(0)->displayName();
    }

    /// A text that is this wide.
    static QString textOfWidth(int width, const QString& characters)
    {
        QRandomGenerator random(3);
        for (int tries = 0; tries < 200000; ++tries) {
            const QString text = randomText(random, characters, 40).trimmed();
            if (metrics().boundingRect(text).width() == width)
                return text;
        }
        return QString();
    }

    static void addFonts()
    {
        QTest::addColumn<QString>("family");
        for (const char* family :
             {"Courier", "DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono", "No Such Family"})
            QTest::newRow(family) << QString::fromLatin1(family);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(_settings.isValid());
        QCoreApplication::setOrganizationName(QStringLiteral("SubnodeViews"));
        QCoreApplication::setApplicationName(QStringLiteral("tst_GV_DisplayNames"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, _settings.path());
    }

    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
        _models = std::make_unique<ShownModels>();
        _robot = _models->showOnly(QStringLiteral("Robot"), model(key("arm", {geometry("s")})));
    }

    void cleanup()
    {
        PR_Preference::instance()->reset(QStringLiteral("ST_3DNODEVIEW_FONT"));
        _models->graph.loadPreferences();
        _models.reset();
    }

    void nameThatFitsIsNotShortened()
    {
        QCOMPARE(displayName(QStringLiteral("Robot")), QString());
        QCOMPARE(displayName(QString()), QString());
        QCOMPARE(_models->header(0)->label(), QString());
    }

    void nameThatDoesNotFitIsCutInItsMiddle()
    {
        const QString name = QString(40, u'a') + QString(40, u'b');
        const QString shortened = displayName(name);
        QVERIFY(shortened.startsWith(u'a'));
        QVERIFY(shortened.endsWith(u'b'));
        QVERIFY(shortened.size() < name.size());
        QVERIFY(metrics().horizontalAdvance(shortened) <= labelWidth);
        QCOMPARE(_models->header(0)->label(), shortened);
    }

    void nameExactlyAsWideAsTheLabelIsNotShortened_data() { addFonts(); }
    void nameExactlyAsWideAsTheLabelIsNotShortened()
    {
        QFETCH(QString, family);
        useFont(family);
        const QString name = textOfWidth(labelWidth, plainCharacters());
        QVERIFY(!name.isEmpty());
        QCOMPARE(displayName(name), QString());
    }

    void nameOnePixelWiderIsShortened_data() { addFonts(); }
    void nameOnePixelWiderIsShortened()
    {
        QFETCH(QString, family);
        useFont(family);
        const QString name = textOfWidth(labelWidth + 1, plainCharacters());
        QVERIFY(!name.isEmpty());
        QVERIFY(!displayName(name).isEmpty());
        QCOMPARE(displayName(name), plainDisplayName(name));
    }

    void partsAreShortenedLikeHeaders()
    {
        QRandomGenerator random(9);
        Parts parts;
        for (int i = 0; i < 200; ++i)
            parts.push_back(
                key(randomText(random, plainCharacters(), 40).toStdString(), {geometry("s")}));
        for (const bool extended : {false, true}) {
            _models->showOnly(QStringLiteral("R"), model(group("g", parts)), extended);
            for (const GV_UiNode* node : preOrder(_models->graph.rootUiNode()))
                QCOMPARE(node->displayName(), plainDisplayName(node->name()));
        }
    }

    void namesMadeBeforeAFontChangeStayAsTheyWere()
    {
        const QString name = QStringLiteral("mmmmmmmmmmmmmm");
        QCOMPARE(displayName(name), QString());
        useFont(QStringLiteral("DejaVu Sans"));
        QCOMPARE(_models->header(0)->displayName(), QString());
        QVERIFY(!displayName(name).isEmpty());
        useFont(QStringLiteral("Courier"));
        QVERIFY(!_models->header(0)->displayName().isEmpty());
        QCOMPARE(displayName(name), QString());
    }

    void namesOfSpacesAreMeasuredByTheRule_data() { addFonts(); }
    void namesOfSpacesAreMeasuredByTheRule()
    {
        QFETCH(QString, family);
        useFont(family);
        for (int length = 0; length < 60; ++length) {
            const QString spaces(length, u' ');
            for (const QString& name : {spaces, spaces + u'a', u'a' + spaces,
                                        QString(u'a' + spaces + u'a'), spaces + u'a' + spaces})
                QCOMPARE(displayName(name), plainDisplayName(name));
        }
    }

    void anyNameIsShortenedByThePlainRule_data() { addFonts(); }
    void anyNameIsShortenedByThePlainRule()
    {
        QFETCH(QString, family);
        useFont(family);
        QRandomGenerator random(7);
        const QStringList stocks{plainCharacters(),
                                 QStringLiteral("iIl|.,'` "),
                                 QStringLiteral("mWM@%&_ "),
                                 QStringLiteral("fijtAVTo/-<>=!"),
                                 QStringLiteral("abc\u00e4\u00df\u0416\u03a9 "),
                                 QStringLiteral("ab\u624b\u8db3\u3042"),
                                 QStringLiteral("ab\u05d0\u05d1\u0645 1"),
                                 QStringLiteral("a\u0301\u200b\u200d\u2026\u00ad"),
                                 QStringLiteral("ab\t\n\u0001\u007f\u009c ")};
        for (int i = 0; i < 4500; ++i) {
            // Plain characters, the most usual ones, get half of the tries.
            const QString& stock = i % 2 ? stocks.at(0) : stocks.at(random.bounded(stocks.size()));
            const QString name = randomText(random, stock, 60);
            const QString shortened = displayName(name);
            QCOMPARE(shortened, plainDisplayName(name));
            QVERIFY(shortened.size() <= name.size());
        }
    }

    void everyLengthIsShortenedByThePlainRule_data() { addFonts(); }
    void everyLengthIsShortenedByThePlainRule()
    {
        QFETCH(QString, family);
        useFont(family);
        for (int length = 0; length < 120; ++length) {
            for (const char16_t character : u"aimW.|")
                QCOMPARE(displayName(QString(length, character)),
                         plainDisplayName(QString(length, character)));
        }
    }

    void veryLongNamesAreShortenedByThePlainRule_data() { addFonts(); }
    void veryLongNamesAreShortenedByThePlainRule()
    {
        QFETCH(QString, family);
        useFont(family);
        QRandomGenerator random(11);
        QString name;
        while (name.size() < 10000)
            name.append(plainCharacters().at(random.bounded(95)));
        QCOMPARE(displayName(name), plainDisplayName(name));
        QVERIFY(displayName(name).size() < 100);
        QCOMPARE(displayName(QString(10000, u' ')), plainDisplayName(QString(10000, u' ')));
    }
};

QTEST_MAIN(tst_GV_DisplayNames)
#include "tst_GV_DisplayNames.moc"
