// SPDX-License-Identifier: MIT

#include "workbench/preferences/ThemeSwitch.h"

#include "tests/workbench/preferences/DesktopStyle.h"
#include "tests/workbench/preferences/PreferencesTest.h"

#include <QApplication>
#include <QSignalSpy>
#include <QStyle>
#include <QWidget>
#include <memory>

class tst_theme_switch : public PreferencesTest
{
    Q_OBJECT

private:
    const QColor _lightDesktop{0xfaf0e6};
    const QColor _darkDesktop{0x102030};
    std::unique_ptr<ThemeSwitch> _theme;

    void want(ThemeSwitch::Choice choice)
    {
        PR_Preference::instance()->setEnum(PreferenceKey::themeKey(), choice);
    }
    static QColor windowColor() { return QApplication::palette().color(QPalette::Window); }
    static QColor ownColor(Theme::Kind kind)
    {
        return Theme::palette(kind).color(QPalette::Window);
    }
    /// What the application looks like, in words.
    QString look()
    {
        const QString palette = windowColor() == _lightDesktop            ? "light desktop"
                                : windowColor() == _darkDesktop           ? "dark desktop"
                                : windowColor() == ownColor(Theme::Light) ? "own light"
                                : windowColor() == ownColor(Theme::Dark)  ? "own dark"
                                                                          : "unknown";
        const QString sheet = qApp->styleSheet() == Theme::styleSheet(Theme::Light)  ? "light"
                              : qApp->styleSheet() == Theme::styleSheet(Theme::Dark) ? "dark"
                                                                                     : "no";
        return QStringLiteral("%1 palette, %2 sheet").arg(palette, sheet);
    }
    /// The style below the style sheet.
    static QString style()
    {
        const QString sheet = qApp->styleSheet();
        qApp->setStyleSheet(QString());
        const QString name = QApplication::style()->name();
        qApp->setStyleSheet(sheet);
        return name;
    }

private slots:
    void initTestCase()
    {
        useOwnStore();
        DesktopStyle::install();
    }
    void init()
    {
        startEmpty();
        DesktopStyle::turn(_lightDesktop);
    }
    void cleanup() { _theme.reset(); }

    void both_style_sheets_can_be_read()
    {
        QVERIFY(Theme::styleSheet(Theme::Light).contains(QLatin1String("SGV_StyleDelegate")));
        QVERIFY(Theme::styleSheet(Theme::Dark).contains(QLatin1String("SGV_StyleDelegate")));
    }

    void without_a_preference_it_looks_like_the_desktop()
    {
        _theme = std::make_unique<ThemeSwitch>();
        QCOMPARE(_theme->choice(), ThemeSwitch::System);
        QCOMPARE(look(), QStringLiteral("light desktop palette, light sheet"));
        QCOMPARE(style(), QStringLiteral("desktop"));
        _theme.reset();
        DesktopStyle::turn(_darkDesktop);
        _theme = std::make_unique<ThemeSwitch>();
        QCOMPARE(look(), QStringLiteral("dark desktop palette, dark sheet"));
    }

    void follows_the_desktop_while_it_runs()
    {
        _theme = std::make_unique<ThemeSwitch>();
        QWidget window;
        window.show();
        QSignalSpy kinds(_theme.get(), &ThemeSwitch::kindChanged);
        DesktopStyle::turn(_darkDesktop);
        QCOMPARE(look(), QStringLiteral("dark desktop palette, dark sheet"));
        QCOMPARE(_theme->kind(), Theme::Dark);
        QCOMPARE(window.palette().color(QPalette::Window), _darkDesktop);
        QCOMPARE(kinds.count(), 1);
        DesktopStyle::turn(_lightDesktop);
        QCOMPARE(look(), QStringLiteral("light desktop palette, light sheet"));
        QCOMPARE(kinds.count(), 2);
        DesktopStyle::turn(QColor(0xeeeeee));
        QCOMPARE(windowColor(), QColor(0xeeeeee));
        QCOMPARE(kinds.count(), 2);
    }

    void every_theme_can_be_left_for_every_other_data()
    {
        QTest::addColumn<bool>("darkDesktop");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("expected");
        for (int from = 0; from < 3; ++from) {
            const auto row = [&](bool darkDesktop, int to, const char* expected) {
                if (from != to) {
                    QTest::addRow("%s desktop, %d to %d", darkDesktop ? "dark" : "light", from, to)
                        << darkDesktop << from << to << QString::fromLatin1(expected);
                }
            };
            row(false, ThemeSwitch::System, "light desktop palette, light sheet");
            row(false, ThemeSwitch::Light, "light desktop palette, light sheet");
            row(false, ThemeSwitch::Dark, "own dark palette, dark sheet");
            row(true, ThemeSwitch::System, "dark desktop palette, dark sheet");
            row(true, ThemeSwitch::Light, "own light palette, light sheet");
            row(true, ThemeSwitch::Dark, "dark desktop palette, dark sheet");
        }
    }
    void every_theme_can_be_left_for_every_other()
    {
        QFETCH(bool, darkDesktop);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, expected);
        DesktopStyle::turn(darkDesktop ? _darkDesktop : _lightDesktop);
        _theme = std::make_unique<ThemeSwitch>();
        for (int round = 0; round < 2; ++round) {
            want(ThemeSwitch::Choice(from));
            want(ThemeSwitch::Choice(to));
            QCOMPARE(look(), expected);
            const bool own = expected.startsWith(QLatin1String("own"));
            QCOMPARE(style(), own ? QStringLiteral("fusion") : QStringLiteral("desktop"));
        }
    }

    void a_fixed_theme_withstands_a_change_of_the_desktop()
    {
        want(ThemeSwitch::Light);
        _theme = std::make_unique<ThemeSwitch>();
        DesktopStyle::turn(_darkDesktop);
        QCOMPARE(look(), QStringLiteral("own light palette, light sheet"));
        DesktopStyle::turn(_lightDesktop);
        QCOMPARE(look(), QStringLiteral("own light palette, light sheet"));
        want(ThemeSwitch::Dark);
        QCOMPARE(look(), QStringLiteral("own dark palette, dark sheet"));
        DesktopStyle::turn(_darkDesktop);
        want(ThemeSwitch::System);
        QCOMPARE(look(), QStringLiteral("dark desktop palette, dark sheet"));
        QCOMPARE(style(), QStringLiteral("desktop"));
    }

    void a_theme_that_was_given_holds_whatever_the_preference_says()
    {
        want(ThemeSwitch::Light);
        _theme = std::make_unique<ThemeSwitch>(ThemeSwitch::Dark);
        QVERIFY(_theme->isOverridden());
        QCOMPARE(look(), QStringLiteral("own dark palette, dark sheet"));
        want(ThemeSwitch::System);
        QCOMPARE(look(), QStringLiteral("own dark palette, dark sheet"));
        QCOMPARE(_theme->choice(), ThemeSwitch::Dark);
        QCOMPARE(PR_Preference::instance()->getEnum(PreferenceKey::themeKey(), 9),
                 int(ThemeSwitch::System));
    }

    void other_preferences_change_nothing()
    {
        want(ThemeSwitch::Dark);
        _theme = std::make_unique<ThemeSwitch>();
        QVERIFY(!_theme->isOverridden());
        QSignalSpy kinds(_theme.get(), &ThemeSwitch::kindChanged);
        PR_Preference::instance()->setIntValue(QStringLiteral("WHEEL_ZOOM_THRESHOLD"), 10);
        QCOMPARE(look(), QStringLiteral("own dark palette, dark sheet"));
        QCOMPARE(kinds.count(), 0);
    }

    void an_unknown_preference_means_the_system()
    {
        for (const int number : {-1, 3, 1000}) {
            PR_Preference::instance()->setEnum(PreferenceKey::themeKey(), number);
            _theme = std::make_unique<ThemeSwitch>();
            QCOMPARE(_theme->choice(), ThemeSwitch::System);
            _theme.reset();
        }
    }

    void leaves_the_desktop_as_it_found_it()
    {
        _theme = std::make_unique<ThemeSwitch>(ThemeSwitch::Dark);
        _theme.reset();
        QCOMPARE(look(), QStringLiteral("light desktop palette, no sheet"));
        QCOMPARE(QApplication::style()->name(), QStringLiteral("desktop"));
    }

    void themes_have_names()
    {
        QCOMPARE(ThemeSwitch::fromName(QStringLiteral("system")), ThemeSwitch::System);
        QCOMPARE(ThemeSwitch::fromName(QStringLiteral("light")), ThemeSwitch::Light);
        QCOMPARE(ThemeSwitch::fromName(QStringLiteral("dark")), ThemeSwitch::Dark);
        for (const char* other : {"", "Dark", "blue", " light"})
            QVERIFY(!ThemeSwitch::fromName(QString::fromLatin1(other)));
    }
};

QTEST_MAIN(tst_theme_switch)
#include "tst_theme_switch.moc"
