// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferenceKey.h"

#include "graphview/GV_GraphUiInfo.h"
#include "graphview/GV_GraphXMainItem.h"
#include "graphview/GV_GraphXViewCtrl.h"
#include "graphview/GV_GraphXViewQt.h"
#include "graphview/GV_WorldViewQt.h"
#include "tests/graphview/GraphStage.h"
#include "tests/workbench/preferences/PreferencesTest.h"
#include "workbench/preferences/PreferenceEdits.h"
#include "workbench/preferences/ThemeSwitch.h"

#include <OpenSG/OSGBaseFunctions.h>
#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <QWheelEvent>
#include <memory>

class tst_preference_key : public PreferencesTest
{
    Q_OBJECT

private:
    std::unique_ptr<GraphStage> _stage;

    GV_GraphXViewQt& view() { return _stage->view(); }
    /// Whether any of the graph view's colours or its font became another one.
    bool load()
    {
        const bool item = view().mainItem()->loadPreferences();
        const bool graph = _stage->graph().loadPreferences();
        return item || graph;
    }
    /// Stores the value itself, even where it is the default.
    static void store(const PreferenceKey& key, const QVariant& value)
    {
        PR_Preference* preferences = PR_Preference::instance();
        if (key.kind == PreferenceKey::Font)
            preferences->setFontValue(key.key, value.toString());
        else
            preferences->setRgbaValue(key.key, value.toUInt());
    }
    /// How the view's zoom changes when the wheel turns.
    double turnWheel(int delta)
    {
        const double before = view().modelToScreen({1, 0}).x - view().modelToScreen({0, 0}).x;
        QWheelEvent event(QPointF(50, 50), QPointF(50, 50), QPoint(), QPoint(0, delta),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view().viewport(), &event);
        return view().modelToScreen({1, 0}).x - view().modelToScreen({0, 0}).x - before;
    }

private slots:
    void initTestCase()
    {
        useOwnStore();
        QVERIFY(osg::osgInit(0, nullptr));
    }
    void init()
    {
        startEmpty();
        _stage = std::make_unique<GraphStage>();
    }
    void cleanup() { _stage.reset(); }

    void the_table_has_every_key_that_the_views_read()
    {
        QSet<QString> keys;
        for (const PreferenceKey& each : PreferenceKey::all())
            keys += each.key;
        QCOMPARE(keys.size(), qsizetype(PreferenceKey::all().size()));
        static const QRegularExpression literal(
            QStringLiteral("\"((?:ST_3DNODEVIEW|GV|WHEEL)_[A-Z_]+)\""));
        QSet<QString> read;
        for (const char* folder : {"graphview", "subnodetree", "responder"}) {
            QDirIterator files(QStringLiteral(SOURCES "/") + QLatin1String(folder), {"*.cpp"});
            while (files.hasNext()) {
                QFile file(files.next());
                QVERIFY(file.open(QIODevice::ReadOnly));
                auto found = literal.globalMatch(QString::fromUtf8(file.readAll()));
                while (found.hasNext())
                    read += found.next().captured(1);
            }
        }
        read += PreferenceKey::themeKey();
        QCOMPARE(keys, read);
    }

    void a_colour_or_font_set_to_its_default_is_no_change_to_the_view_data()
    {
        QTest::addColumn<QString>("name");
        for (const PreferenceKey& each : PreferenceKey::all()) {
            if ((each.kind == PreferenceKey::Colour || each.kind == PreferenceKey::Font) &&
                each.key != QLatin1String("ST_3DNODEVIEW_BACKGROUND_COLOR"))
                QTest::newRow(qPrintable(each.key)) << each.key;
        }
    }
    void a_colour_or_font_set_to_its_default_is_no_change_to_the_view()
    {
        QFETCH(QString, name);
        const PreferenceKey each = key(qPrintable(name));
        // The view itself would be the first to notice.
        view();
        const QSignalBlocker quiet(PR_Preference::instance());
        load();
        QVERIFY(!load());
        store(each, each.defaultValue);
        QVERIFY(!load());
        store(each, otherValue(each));
        QVERIFY(load());
        PR_Preference::instance()->reset(name);
        QVERIFY(load());
    }

    void the_background_is_that_of_the_view()
    {
        const PreferenceKey background = key("ST_3DNODEVIEW_BACKGROUND_COLOR");
        QCOMPARE(QVariant(view().backgroundBrush().color().rgba()), background.defaultValue);
        PreferenceEdits().set(background, 0xff102030U);
        QCOMPARE(view().backgroundBrush().color().rgba(), 0xff102030U);
    }

    void the_navigator_starts_where_it_does_without_a_preference()
    {
        view().resize(600, 400);
        view().show();
        const QPoint byItself = view().worldView()->pos();
        QVERIFY(!view().worldView()->isHidden());
        QCOMPARE(key("GV_WORLD_VIEW_STARTING_STATE").defaultValue, QVariant(true));
        const PreferenceKey corner = key("GV_WORLD_VIEW_STARTING_CORNER");
        PR_Preference::instance()->setEnum(corner.key, corner.defaultValue.toInt());
        const std::unique_ptr<GV_GraphXViewQt> same = _stage->newView();
        same->resize(600, 400);
        same->show();
        QCOMPARE(same->worldView()->pos(), byItself);
        PreferenceEdits().set(corner, 0);
        PreferenceEdits().set(key("GV_WORLD_VIEW_STARTING_STATE"), false);
        const std::unique_ptr<GV_GraphXViewQt> other = _stage->newView();
        other->resize(600, 400);
        other->show();
        QVERIFY(other->worldView()->pos() != byItself);
        QVERIFY(other->worldView()->isHidden());
        PR_Preference::instance()->reset(corner.key);
        QCOMPARE(QVariant(PR_Preference::instance()->getEnum(corner.key)), corner.defaultValue);
    }

    void the_display_mode_is_that_of_new_views()
    {
        const PreferenceKey mode = key("GV_EXTENDED_DISPLAY");
        QCOMPARE(QVariant(view().controller()->isExtendedDisplay()), mode.defaultValue);
        PreferenceEdits().set(mode, true);
        QVERIFY(!view().controller()->isExtendedDisplay());
        QVERIFY(_stage->newView()->controller()->isExtendedDisplay());
    }

    void the_wheel_zooms_beyond_the_threshold()
    {
        const int threshold = key("WHEEL_ZOOM_THRESHOLD").defaultValue.toInt();
        view().resize(600, 400);
        QCOMPARE(turnWheel(threshold), 0.0);
        QVERIFY(turnWheel(1) > 0.0);
    }

    void the_theme_has_a_text_for_each_choice()
    {
        const PreferenceKey theme = key("WORKBENCH_THEME");
        QCOMPARE(theme.choices.size(), 3);
        QCOMPARE(theme.choices.at(ThemeSwitch::Light), QStringLiteral("Light"));
        QCOMPARE(theme.choices.at(ThemeSwitch::Dark), QStringLiteral("Dark"));
        QCOMPARE(theme.defaultValue, QVariant(int(ThemeSwitch::System)));
    }
};

QTEST_MAIN(tst_preference_key)
#include "tst_preference_key.moc"
