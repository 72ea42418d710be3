// SPDX-License-Identifier: MIT

#include "workbench/preferences/PreferenceControl.h"

#include "tests/workbench/preferences/PreferencesDialogTest.h"
#include "workbench/preferences/PreferenceEdits.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStyleOptionSpinBox>

class tst_preference_controls : public PreferencesDialogTest
{
    Q_OBJECT

private:
    PreferenceKey _key{};

    void openAt(const QString& name)
    {
        _key = key(qPrintable(name));
        QVERIFY(open(_key.page));
    }
    void clickUpArrow(QSpinBox* box)
    {
        QStyleOptionSpinBox option;
        option.initFrom(box);
        option.subControls = QStyle::SC_All;
        const QRect arrow =
            box->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, box);
        QTest::mouseClick(box, Qt::LeftButton, {}, arrow.center());
    }
    void clickAnotherEntry(QComboBox* box)
    {
        // A click right after the list came up counts as the end of the click that opened it.
        const int interval = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(0);
        const auto restore =
            qScopeGuard([interval] { QApplication::setDoubleClickInterval(interval); });
        // The arrow, since the rest of an editable box is for typing.
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->width() - 8, box->height() / 2));
        QAbstractItemView* list = box->view();
        QTRY_VERIFY(list->isVisible());
        const int row = (box->currentIndex() + 1) % box->count();
        const QModelIndex entry = box->model()->index(row, box->modelColumn());
        list->scrollTo(entry);
        QCoreApplication::processEvents();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(entry).center());
        QTRY_VERIFY(!list->isVisible());
    }
    void clickAnotherColor()
    {
        click(control(_key.key));
        QTRY_VERIFY(colorDialog() && colorDialog()->isVisible());
        const auto wells = colorDialog()->findChildren<QWidget*>();
        const auto well = std::ranges::find_if(wells, [](const QWidget* each) {
            return QByteArray(each->metaObject()->className()).contains("WellArray");
        });
        QVERIFY(well != wells.end());
        QTest::mouseClick(*well, Qt::LeftButton, {}, (*well)->rect().center());
        click(colorDialog()->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok));
        QTRY_VERIFY(!colorDialog());
    }
    void clickAnotherValue()
    {
        switch (_key.kind) {
        case PreferenceKey::Colour:
            return clickAnotherColor();
        case PreferenceKey::Font:
        case PreferenceKey::Choice:
            return clickAnotherEntry(control<QComboBox>(_key.key));
        case PreferenceKey::Switch:
            return QTest::mouseClick(control(_key.key), Qt::LeftButton, {}, QPoint(8, 8));
        case PreferenceKey::Integer:
            return clickUpArrow(control<QSpinBox>(_key.key));
        }
    }
    void typeColor(const QString& name)
    {
        typeMnemonicOf(_key.label);
        // A label may press the button that it belongs to, or only lead there.
        if (!colorDialog())
            type(Qt::Key_Space);
        QTRY_VERIFY(colorDialog() && colorDialog()->isActiveWindow());
        QWindow* window = colorDialog()->windowHandle();
        QTest::keyClick(window, Qt::Key_H, Qt::AltModifier);
        auto* field = qobject_cast<QLineEdit*>(colorDialog()->focusWidget());
        QVERIFY(field);
        field->selectAll();
        for (const QChar each : name)
            QTest::keyClick(window, each.toLatin1());
        QTest::keyClick(window, Qt::Key_Return);
        QTRY_VERIFY(!colorDialog());
    }
    void typeAnotherValue()
    {
        if (_key.kind == PreferenceKey::Colour)
            return typeColor(QStringLiteral("#123456"));
        typeMnemonicOf(_key.label);
        if (_key.kind == PreferenceKey::Switch)
            return;
        QTRY_COMPARE(_dialog->focusWidget(), control(_key.key));
        type(control<QComboBox>(_key.key) && _key.defaultValue == 3 ? Qt::Key_Up : Qt::Key_Down);
    }

private slots:
    void initTestCase() { useOwnStore(); }
    void init() { startEmpty(); }
    void cleanup() { _dialog.reset(); }

    void each_is_changed_and_reset_by_mouse_data() { addRowForEachKey(); }
    void each_is_changed_and_reset_by_mouse()
    {
        QFETCH(QString, name);
        openAt(name);
        clickAnotherValue();
        QTRY_VERIFY(!PreferenceEdits::isDefault(_key));
        QCOMPARE(shown(_key), PreferenceEdits::value(_key));
        QCOMPARE(storedKeys(), QStringList{name});
        click(resetButton(name));
        QCOMPARE(shown(_key), _key.defaultValue);
        QVERIFY(storedKeys().isEmpty());
        QVERIFY(!resetButton(name)->isEnabled());
    }

    void each_is_changed_and_reset_by_keys_data() { addRowForEachKey(); }
    void each_is_changed_and_reset_by_keys()
    {
        QFETCH(QString, name);
        openAt(name);
        typeAnotherValue();
        QTRY_VERIFY(!PreferenceEdits::isDefault(_key));
        QCOMPARE(shown(_key), PreferenceEdits::value(_key));
        QCOMPARE(storedKeys(), QStringList{name});
        // Off screen, the window below a closed dialog does not become active by itself.
        _dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(_dialog.get()));
        control(name)->setFocus();
        type(Qt::Key_Tab);
        QVERIFY(resetButton(name)->hasFocus());
        type(Qt::Key_Space);
        QCOMPARE(shown(_key), _key.defaultValue);
        QVERIFY(storedKeys().isEmpty());
        // The next key is meant for the same row.
        QVERIFY(control(name)->hasFocus());
    }

    void a_colour_shows_in_the_store_while_it_is_being_chosen()
    {
        openAt(QStringLiteral("ST_3DNODEVIEW_NODE_COLOR"));
        click(control(_key.key));
        QTRY_VERIFY(colorDialog());
        QCOMPARE(colorDialog()->currentColor(), QColor(69, 90, 163));
        colorDialog()->setCurrentColor(QColor(1, 2, 3, 4));
        QCOMPARE(PreferenceEdits::value(_key), QVariant(0x04010203U));
        QCOMPARE(control<ColorButton>(_key.key)->text(), QStringLiteral("#04010203"));
    }

    void a_colour_dialog_that_is_cancelled_leaves_everything_as_it_was()
    {
        openAt(QStringLiteral("ST_3DNODEVIEW_NODE_COLOR"));
        click(control(_key.key));
        QTRY_VERIFY(colorDialog() && colorDialog()->isActiveWindow());
        colorDialog()->setCurrentColor(Qt::red);
        QTest::keyClick(colorDialog()->windowHandle(), Qt::Key_Escape);
        QTRY_VERIFY(!colorDialog());
        QVERIFY(storedKeys().isEmpty());
        QCOMPARE(shown(_key), _key.defaultValue);
        QVERIFY(_dialog->isVisible());
    }

    void half_transparent_colours_can_be_chosen()
    {
        openAt(QStringLiteral("ST_3DNODEVIEW_NODE_COLOR"));
        click(control(_key.key));
        QTRY_VERIFY(colorDialog());
        QVERIFY(colorDialog()->testOption(QColorDialog::ShowAlphaChannel));
        QVERIFY(colorDialog()->testOption(QColorDialog::DontUseNativeDialog));
    }

    void the_swatch_shows_the_colour_sharply_at_every_scale_data()
    {
        QTest::addColumn<qreal>("scale");
        for (const qreal scale : {1.0, 1.5, 2.0})
            QTest::addRow("%g", scale) << scale;
    }
    void the_swatch_shows_the_colour_sharply_at_every_scale()
    {
        QFETCH(qreal, scale);
        ColorButton swatch;
        swatch.setColor(QColor(10, 200, 30));
        const QPixmap picture = swatch.icon().pixmap(swatch.iconSize(), scale);
        QCOMPARE(picture.size(), swatch.iconSize() * scale);
        const QImage image = picture.toImage();
        QCOMPARE(image.pixelColor(image.rect().center()), QColor(10, 200, 30));
        const int margin = image.height() / 4;
        const int right = image.width() - margin;
        QCOMPARE(image.pixelColor(margin + 1, 1), QColor(10, 200, 30));
        QCOMPARE(image.pixelColor(right - 2, image.height() - 2), QColor(10, 200, 30));
        // Nothing is blurred beyond the frame.
        QCOMPARE(image.pixelColor(margin - 1, 1).alpha(), 0);
        QCOMPARE(image.pixelColor(right, 1).alpha(), 0);
    }

    void the_ground_shows_through_a_transparent_swatch()
    {
        ColorButton swatch;
        swatch.setColor(Qt::transparent);
        QCOMPARE(swatch.text(), QStringLiteral("#00000000"));
        const QImage image = swatch.icon().pixmap(swatch.iconSize()).toImage();
        QCOMPARE(image.pixelColor(7, 3), QColor(Qt::white));
        QCOMPARE(image.pixelColor(15, 3), QColor(Qt::lightGray));
    }

    void showing_a_value_is_no_edit()
    {
        for (const PreferenceKey& each : PreferenceKey::all()) {
            int edits = 0;
            QWidget page;
            const PreferenceControl control =
                PreferenceControl::create(each, &page, [&](const QVariant&) { ++edits; });
            control.show(otherValue(each));
            control.show(each.defaultValue);
            QCOMPARE(edits, 0);
        }
    }
};

QTEST_MAIN(tst_preference_controls)
#include "tst_preference_controls.moc"
