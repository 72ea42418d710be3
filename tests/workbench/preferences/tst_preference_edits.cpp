// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferenceEdits.h"

#include "tests/workbench/preferences/PreferencesTest.h"

#include <QSignalSpy>

class tst_preference_edits : public PreferencesTest
{
    Q_OBJECT

private slots:
    void initTestCase() { useOwnStore(); }
    void init() { startEmpty(); }

    void every_key_round_trips_data() { addRowForEachKey(); }
    void every_key_round_trips()
    {
        QFETCH(QString, name);
        const PreferenceKey each = key(qPrintable(name));
        PreferenceEdits edits;
        QCOMPARE(PreferenceEdits::value(each), each.defaultValue);
        QVERIFY(PreferenceEdits::isDefault(each));
        QVERIFY(!PreferenceEdits::stored(each).isValid());
        edits.set(each, otherValue(each));
        QCOMPARE(PreferenceEdits::value(each), otherValue(each));
        QCOMPARE(PreferenceEdits::stored(each), otherValue(each));
        QVERIFY(!PreferenceEdits::isDefault(each));
        QCOMPARE(storedKeys(), QStringList{name});
        edits.reset(each);
        QCOMPARE(PreferenceEdits::value(each), each.defaultValue);
        QVERIFY(storedKeys().isEmpty());
    }

    void reverting_unsets_what_was_not_set_data() { addRowForEachKey(); }
    void reverting_unsets_what_was_not_set()
    {
        QFETCH(QString, name);
        const PreferenceKey each = key(qPrintable(name));
        PreferenceEdits edits;
        edits.set(each, otherValue(each));
        edits.revert();
        QVERIFY(storedKeys().isEmpty());
    }

    void reverting_brings_back_what_was_set_at_first()
    {
        const PreferenceKey threshold = key("WHEEL_ZOOM_THRESHOLD");
        PR_Preference::instance()->setIntValue(threshold.key, 80);
        PreferenceEdits edits;
        edits.set(threshold, 90);
        edits.set(threshold, 100);
        edits.reset(threshold);
        edits.revert();
        QCOMPARE(PreferenceEdits::stored(threshold), QVariant(80));
    }

    void reverting_brings_back_even_what_is_out_of_range_or_the_default()
    {
        const PreferenceKey corner = key("GV_WORLD_VIEW_STARTING_CORNER");
        const PreferenceKey theme = key("WORKBENCH_THEME");
        PR_Preference::instance()->setEnum(corner.key, -9);
        PR_Preference::instance()->setEnum(theme.key, 0);
        PreferenceEdits edits;
        edits.set(corner, 1);
        edits.set(theme, 2);
        edits.revert();
        QCOMPARE(PreferenceEdits::stored(corner), QVariant(-9));
        QCOMPARE(PreferenceEdits::stored(theme), QVariant(0));
    }

    void reverting_leaves_alone_what_others_changed()
    {
        PreferenceEdits edits;
        edits.set(key("WORKBENCH_THEME"), 2);
        PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), true);
        edits.revert();
        QCOMPARE(storedKeys(), QStringList{QStringLiteral("GV_EXTENDED_DISPLAY")});
    }

    void what_was_kept_is_not_reverted()
    {
        PreferenceEdits edits;
        edits.set(key("WORKBENCH_THEME"), 2);
        edits.keep();
        edits.revert();
        QCOMPARE(PreferenceEdits::value(key("WORKBENCH_THEME")), QVariant(2));
    }

    void the_default_is_not_stored()
    {
        const PreferenceKey threshold = key("WHEEL_ZOOM_THRESHOLD");
        PR_Preference::instance()->setIntValue(threshold.key, 80);
        PreferenceEdits edits;
        edits.set(threshold, threshold.defaultValue);
        QVERIFY(storedKeys().isEmpty());
    }

    void tells_of_changes_alone_and_after_they_hold()
    {
        const PreferenceKey theme = key("WORKBENCH_THEME");
        PreferenceEdits edits;
        QVariant heard;
        connect(&edits, &PreferenceEdits::applied, this,
                [&] { heard = PreferenceEdits::value(theme); });
        QSignalSpy applied(&edits, &PreferenceEdits::applied);
        edits.revert();
        edits.reset(theme);
        edits.set(theme, 0);
        QCOMPARE(applied.count(), 0);
        edits.set(theme, 2);
        edits.set(theme, 2);
        QCOMPARE(applied.count(), 1);
        QCOMPARE(heard, QVariant(2));
        edits.reset(theme);
        QCOMPARE(applied.count(), 2);
        edits.set(theme, 1);
        edits.revert();
        QCOMPARE(applied.count(), 4);
        QCOMPARE(heard, QVariant(0));
        edits.revert();
        QCOMPARE(applied.count(), 4);
    }
};

QTEST_GUILESS_MAIN(tst_preference_edits)
#include "tst_preference_edits.moc"
