// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferencesDialog.h"

#include "tests/workbench/preferences/PreferencesDialogTest.h"
#include "workbench/preferences/PreferenceEdits.h"

#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QSignalSpy>

class tst_preferences_dialog : public PreferencesDialogTest
{
    Q_OBJECT

private:
    static constexpr QSize largest{900, 650};
    const QString _threshold = QStringLiteral("WHEEL_ZOOM_THRESHOLD");

    int threshold() { return PreferenceEdits::value(key("WHEEL_ZOOM_THRESHOLD")).toInt(); }
    /// Everything that is stored, as text.
    static QString store()
    {
        QStringList lines;
        const QSettings settings;
        for (const QString& each : settings.allKeys())
            lines += each + u'=' + settings.value(each).toString();
        return lines.join(u' ');
    }
    QStringList mnemonics()
    {
        QStringList letters;
        const auto add = [&](const QString& text) {
            const qsizetype at = text.indexOf(u'&');
            if (at >= 0)
                letters += text.at(at + 1).toUpper();
        };
        for (const QLabel* each : _dialog->findChildren<QLabel*>()) {
            if (each->isVisible())
                add(each->text());
        }
        for (const QAbstractButton* each : _dialog->findChildren<QAbstractButton*>()) {
            if (each->isVisible())
                add(each->text());
        }
        return letters;
    }

private slots:
    void initTestCase() { useOwnStore(); }
    void init() { startEmpty(); }
    void cleanup() { _dialog.reset(); }

    void shows_what_is_stored_data() { addRowForEachKey(); }
    void shows_what_is_stored()
    {
        QFETCH(QString, name);
        const PreferenceKey each = key(qPrintable(name));
        QVERIFY(open());
        QCOMPARE(shown(each), each.defaultValue);
        _dialog.reset();
        PreferenceEdits().set(each, otherValue(each));
        QVERIFY(open());
        QCOMPARE(shown(each), otherValue(each));
        for (const PreferenceKey& other : PreferenceKey::all())
            QCOMPARE(resetButton(other.key)->isEnabled(), other.key == name);
    }

    void follows_what_others_change_while_it_is_open()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        QVERIFY(!pageResetButton()->isEnabled());
        PR_Preference::instance()->setBoolValue(QStringLiteral("GV_EXTENDED_DISPLAY"), true);
        QVERIFY(control<QCheckBox>(QStringLiteral("GV_EXTENDED_DISPLAY"))->isChecked());
        QVERIFY(resetButton(QStringLiteral("GV_EXTENDED_DISPLAY"))->isEnabled());
        QVERIFY(pageResetButton()->isEnabled());
    }

    void shows_values_out_of_range_as_what_comes_closest()
    {
        PR_Preference::instance()->setEnum(QStringLiteral("GV_WORLD_VIEW_STARTING_CORNER"), 9);
        PR_Preference::instance()->setEnum(QStringLiteral("WORKBENCH_THEME"), -1);
        PR_Preference::instance()->setIntValue(_threshold, 1000000);
        QVERIFY(open());
        QCOMPARE(shown(key("GV_WORLD_VIEW_STARTING_CORNER")), QVariant(3));
        QCOMPARE(shown(key("WORKBENCH_THEME")), QVariant(0));
        QCOMPARE(shown(key("WHEEL_ZOOM_THRESHOLD")), QVariant(1200));
        QVERIFY(resetButton(QStringLiteral("GV_WORLD_VIEW_STARTING_CORNER"))->isEnabled());
        QCOMPARE(threshold(), 1000000);
    }

    void ok_keeps_the_changes()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        control<QSpinBox>(_threshold)->setValue(70);
        click(button(QDialogButtonBox::Ok));
        QCOMPARE(_dialog->result(), int(QDialog::Accepted));
        QVERIFY(!_dialog->isVisible());
        _dialog.reset();
        QCOMPARE(threshold(), 70);
    }

    void enter_keeps_the_changes()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        control<QSpinBox>(_threshold)->setFocus();
        type(Qt::Key_Up);
        type(Qt::Key_Return);
        QCOMPARE(_dialog->result(), int(QDialog::Accepted));
        QCOMPARE(threshold(), 51);
    }

    void a_font_that_is_still_being_typed_counts_with_ok_alone_data()
    {
        QTest::addColumn<bool>("ok");
        QTest::newRow("ok") << true;
        QTest::newRow("cancel") << false;
    }
    void a_font_that_is_still_being_typed_counts_with_ok_alone()
    {
        QFETCH(bool, ok);
        QVERIFY(open(PreferenceKey::GraphView));
        auto* box = control<QComboBox>(QStringLiteral("ST_3DNODEVIEW_FONT"));
        box->setFocus();
        box->lineEdit()->selectAll();
        QTest::keyClicks(box->lineEdit(), QStringLiteral("No Such Family"));
        QVERIFY(storedKeys().isEmpty());
        if (ok)
            _dialog->accept();
        else
            type(Qt::Key_Escape);
        QVERIFY(!_dialog->isVisible());
        QCOMPARE(store(), ok ? QStringLiteral("ST_3DNODEVIEW_FONT=No Such Family") : QString());
    }

    void a_font_that_is_still_being_typed_goes_with_the_dialog()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        auto* box = control<QComboBox>(QStringLiteral("ST_3DNODEVIEW_FONT"));
        box->setFocus();
        QTest::keyClicks(box->lineEdit(), QStringLiteral("X"));
        _dialog.reset();
        QVERIFY(storedKeys().isEmpty());
    }

    void an_empty_font_is_the_default()
    {
        PR_Preference::instance()->setFontValue(QStringLiteral("ST_3DNODEVIEW_FONT"),
                                                QStringLiteral("DejaVu Serif"));
        QVERIFY(open(PreferenceKey::GraphView));
        auto* box = control<QComboBox>(QStringLiteral("ST_3DNODEVIEW_FONT"));
        box->setFocus();
        box->lineEdit()->selectAll();
        type(Qt::Key_Delete);
        type(Qt::Key_Tab);
        QVERIFY(storedKeys().isEmpty());
        QCOMPARE(box->currentText(), QStringLiteral("Courier"));
    }

    void every_other_way_out_brings_back_exactly_what_was_before_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("wasStored");
        for (const char* way : {"cancel", "escape", "close", "destruction"}) {
            QTest::addRow("%s, nothing stored", way) << QString::fromLatin1(way) << false;
            QTest::addRow("%s, all stored", way) << QString::fromLatin1(way) << true;
        }
    }
    void every_other_way_out_brings_back_exactly_what_was_before()
    {
        QFETCH(QString, way);
        QFETCH(bool, wasStored);
        for (const PreferenceKey& each : PreferenceKey::all()) {
            if (wasStored)
                PreferenceEdits().set(each, otherValue(each));
        }
        const QString before = store();
        QVERIFY(open());
        for (const PreferenceKey& each : PreferenceKey::all()) {
            if (wasStored)
                resetButton(each.key)->click();
        }
        control<QSpinBox>(_threshold)->setValue(1000);
        control<QCheckBox>(QStringLiteral("GV_EXTENDED_DISPLAY"))->click();
        QVERIFY(store() != before);
        if (way == QLatin1String("cancel"))
            click(button(QDialogButtonBox::Cancel));
        else if (way == QLatin1String("escape"))
            type(Qt::Key_Escape);
        else if (way == QLatin1String("close"))
            _dialog->close();
        else
            _dialog.reset();
        QCOMPARE(store(), before);
        QVERIFY(!_dialog || (!_dialog->isVisible() && _dialog->result() == QDialog::Rejected));
    }

    void what_was_before_is_back_when_the_dialog_says_it_was_cancelled()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        int heard = 0;
        connect(_dialog.get(), &QDialog::rejected, this, [&] { heard = threshold(); });
        control<QSpinBox>(_threshold)->setValue(1000);
        type(Qt::Key_Escape);
        QCOMPARE(heard, 50);
    }

    void opened_again_it_starts_anew()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        control<QSpinBox>(_threshold)->setValue(60);
        click(button(QDialogButtonBox::Ok));
        QVERIFY(show());
        control<QSpinBox>(_threshold)->setValue(90);
        type(Qt::Key_Escape);
        QCOMPARE(threshold(), 60);
        QCOMPARE(control<QSpinBox>(_threshold)->value(), 60);
    }

    void tells_of_every_change_and_of_its_undoing()
    {
        QVERIFY(open(PreferenceKey::GraphView));
        QSignalSpy applied(_dialog.get(), &PreferencesDialog::applied);
        control<QSpinBox>(_threshold)->setValue(60);
        QCOMPARE(applied.count(), 1);
        type(Qt::Key_Escape);
        QCOMPARE(applied.count(), 2);
    }

    void a_page_is_reset_alone()
    {
        for (const PreferenceKey& each : PreferenceKey::all())
            PreferenceEdits().set(each, otherValue(each));
        QVERIFY(open(PreferenceKey::GraphView));
        click(pageResetButton());
        QVERIFY(!pageResetButton()->isEnabled());
        for (const PreferenceKey& each : PreferenceKey::all()) {
            const bool onPage = each.page == PreferenceKey::GraphView;
            QCOMPARE(PreferenceEdits::isDefault(each), onPage);
            QCOMPARE(shown(each), onPage ? each.defaultValue : otherValue(each));
        }
        _dialog->showPage(PreferenceKey::Appearance);
        QVERIFY(pageResetButton()->isEnabled());
        type(Qt::Key_D, Qt::AltModifier);
        QTRY_VERIFY(PreferenceEdits::isDefault(key("WORKBENCH_THEME")));
    }

    void pages_are_chosen_by_mouse_and_by_keys()
    {
        QVERIFY(open());
        const QString corner = QStringLiteral("GV_WORLD_VIEW_STARTING_CORNER");
        const QRect second = pages()->visualItemRect(pages()->item(1));
        QTest::mouseClick(pages()->viewport(), Qt::LeftButton, {}, second.center());
        QVERIFY(control(corner)->isVisible());
        QVERIFY(pages()->hasFocus());
        type(Qt::Key_Down);
        QVERIFY(!control(corner)->isVisible());
        QVERIFY(control(QStringLiteral("WORKBENCH_THEME"))->isVisible());
    }

    void tab_goes_through_the_rows_from_top_to_bottom_data()
    {
        QTest::addColumn<int>("page");
        QTest::newRow("colours") << int(PreferenceKey::GraphViewColours);
        QTest::newRow("graph view") << int(PreferenceKey::GraphView);
        QTest::newRow("appearance") << int(PreferenceKey::Appearance);
    }
    void tab_goes_through_the_rows_from_top_to_bottom()
    {
        QFETCH(int, page);
        for (const PreferenceKey& each : PreferenceKey::all())
            PreferenceEdits().set(each, otherValue(each));
        QVERIFY(open(PreferenceKey::Page(page)));
        pages()->setFocus();
        for (const PreferenceKey& each : PreferenceKey::ofPage(PreferenceKey::Page(page))) {
            type(Qt::Key_Tab);
            QCOMPARE(_dialog->focusWidget(), control(each.key));
            type(Qt::Key_Tab);
            QCOMPARE(_dialog->focusWidget(), resetButton(each.key));
        }
        type(Qt::Key_Tab);
        QVERIFY(_dialog->findChild<QDialogButtonBox*>()->isAncestorOf(_dialog->focusWidget()));
    }

    void every_control_has_a_name_of_its_own()
    {
        QVERIFY(open());
        QSet<QString> names;
        for (const PreferenceKey& each : PreferenceKey::all()) {
            names += control(each.key)->accessibleName();
            names += resetButton(each.key)->accessibleName();
        }
        QVERIFY(!names.contains(QString()));
        QCOMPARE(names.size(), qsizetype(PreferenceKey::all().size() * 2));
        QCOMPARE(pages()->accessibleName(), QStringLiteral("Pages"));
    }

    void no_two_mnemonics_of_a_page_are_alike()
    {
        QVERIFY(open());
        for (int page = 0; page < pages()->count(); ++page) {
            pages()->setCurrentRow(page);
            const QStringList letters = mnemonics();
            QVERIFY(letters.size() >= 2);
            QCOMPARE(QSet<QString>(letters.begin(), letters.end()).size(), letters.size());
        }
    }

    void every_page_fits_without_scrolling()
    {
        QVERIFY(open());
        QVERIFY(_dialog->sizeHint().width() <= largest.width());
        QVERIFY(_dialog->sizeHint().height() <= largest.height());
        for (const PreferenceKey& each : PreferenceKey::all()) {
            _dialog->showPage(each.page);
            const QWidget* widget = control(each.key);
            QVERIFY(widget->width() >= widget->minimumSizeHint().width());
            QVERIFY(_dialog->rect().contains(
                QRect(widget->mapTo(_dialog.get(), QPoint()), widget->size())));
        }
        for (const QLabel* label : _dialog->findChildren<QLabel*>()) {
            if (label->isVisible())
                QVERIFY(label->width() >= label->sizeHint().width());
        }
    }

    void says_when_another_theme_holds_for_this_run()
    {
        QVERIFY(open(PreferenceKey::Appearance));
        const auto remarks = [this] {
            int count = 0;
            for (const QLabel* label : _dialog->findChildren<QLabel*>())
                count += label->isVisible() && label->text().contains(QLatin1String("this run"));
            return count;
        };
        QCOMPARE(remarks(), 0);
        _dialog->setThemeOverridden(true);
        QCOMPARE(remarks(), 1);
        _dialog->setThemeOverridden(false);
        QCOMPARE(remarks(), 0);
    }
};

QTEST_MAIN(tst_preferences_dialog)
#include "tst_preferences_dialog.moc"
